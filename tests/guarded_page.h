// A buffer of exactly n bytes that ends at an unreadable page, so that one byte too far is a fault.
#pragma once

#include <sys/mman.h>
#include <unistd.h>

#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <string>

namespace kov::test {

class GuardedBuffer {
 public:
  explicit GuardedBuffer(std::size_t size) {
    const auto page = static_cast<std::size_t>(::sysconf(_SC_PAGESIZE));
    const std::size_t used = (size + page - 1) / page * page;
    mappedSize_ = used + page;
    mapped_ = ::mmap(nullptr, mappedSize_, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (mapped_ == MAP_FAILED) std::abort();
    char* const guardPage = static_cast<char*>(mapped_) + used;
    if (::mprotect(guardPage, page, PROT_NONE) != 0) std::abort();
    data_ = guardPage - size;
  }

  /** A copy of `text` whose NUL is the last readable byte. */
  explicit GuardedBuffer(const std::string& text) : GuardedBuffer(text.size() + 1) {
    std::memcpy(data_, text.c_str(), text.size() + 1);
  }

  GuardedBuffer(const GuardedBuffer&) = delete;
  GuardedBuffer& operator=(const GuardedBuffer&) = delete;
  ~GuardedBuffer() { ::munmap(mapped_, mappedSize_); }

  char* data() { return data_; }

 private:
  void* mapped_ = nullptr;
  std::size_t mappedSize_ = 0;
  char* data_ = nullptr;
};

}  // namespace kov::test
