/**
 * @file services.h
 * @brief The platform services that kov_protocol imports: memory, logging and the payload encoders.
 *
 * The protocol library only declares and calls them. The kov_platform library implements each group in an object of
 * its own, so that an application replaces a group by defining all its functions itself.
 */
#ifndef KOV_PLATFORM_SERVICES_H
#define KOV_PLATFORM_SERVICES_H

#include <stddef.h>

#if defined(__GNUC__)
#define KOV_PRINTF_FORMAT __attribute__((format(printf, 1, 2)))
#else
#define KOV_PRINTF_FORMAT
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* Memory. */

/**
 * Allocates one block for an analysis result or a work buffer.
 * @param size bytes wanted, at least 1
 * @return a block that the C library's free() accepts, or null
 */
void *KovProtocolMalloc(size_t size);

/** Releases a block of KovProtocolMalloc(); null is ignored. */
void KovProtocolFree(void *block);

/* Logging: printf-style, one line a call, every format ends in a newline. Information lines carry whole messages. */

void KovProtocolLogInfo(const char *format, ...) KOV_PRINTF_FORMAT;
void KovProtocolLogError(const char *format, ...) KOV_PRINTF_FORMAT;
void KovProtocolLogDebug(const char *format, ...) KOV_PRINTF_FORMAT;

/* Payload encoders: each returns the number of bytes written to `out`, or a negative code when it fails. */

int KovProtocolEncode(int encodeMode, const char *data, int dataLen, char *out, int outSize, void *key);
int KovProtocolDecode(int decodeMode, const char *data, int dataLen, char *out, int outSize, void *key);
int P2pProtocolEncode(int encodeMode, const char *data, int dataLen, char *out, int outSize);
int P2pProtocolDecode(int decodeMode, const char *data, int dataLen, char *out, int outSize);

#ifdef __cplusplus
}
#endif

#endif
