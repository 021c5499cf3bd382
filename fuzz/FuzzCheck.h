#pragma once
// What the harnesses share: a failed expectation is reported with the input's
// context and stops the fuzzer, which then saves the input as a crash.
#include <cstdio>
#include <cstdlib>

#define FUZZ_CHECK(condition, ...)                                                                                     \
    do {                                                                                                               \
        if (!(condition)) {                                                                                            \
            std::fprintf(stderr, "check failed: %s (%s:%d)\n", #condition, __FILE__, __LINE__);                        \
            std::fprintf(stderr, __VA_ARGS__);                                                                         \
            std::fprintf(stderr, "\n");                                                                                \
            std::abort();                                                                                              \
        }                                                                                                              \
    } while (false)
