/**
 * @file memory.cpp
 * @brief Memory service: the C library's heap, so that applications may release results with free().
 */
#include <cstdlib>

#include "kov_platform/services.h"

void *KovProtocolMalloc(size_t size) { return std::malloc(size); }

void KovProtocolFree(void *block) { std::free(block); }
