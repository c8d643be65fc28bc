// What the harnesses share. A harness is one function, which libFuzzer or FixedRun.cpp calls with one input
// after the other; a property that does not hold ends the program with SIGABRT.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

/// Ends the program when a property does not hold.
#define HOLDS(property)                                                                                      \
    do {                                                                                                     \
        if (!(property)) {                                                                                   \
            std::fprintf(stderr, "%s:%d: does not hold: %s\n", __FILE__, __LINE__, #property);               \
            std::abort();                                                                                    \
        }                                                                                                    \
    } while (false)
