// Inner loops are compiled for several generations of processors; the fastest that the machine has is taken at start.
#pragma once

// By the levels of the psABI: GCC 12 takes the name of a processor for that one alone, and newer ones for none.
// A sanitizer's run-time is not up yet when the choice is made.
#if defined(__GNUC__) && !defined(__clang__) && defined(__x86_64__) && !defined(__SANITIZE_ADDRESS__) && \
    !defined(__SANITIZE_THREAD__)
#define ZOL_VECTOR_CLONES __attribute__((target_clones("arch=x86-64-v4", "arch=x86-64-v3", "default")))
#else
#define ZOL_VECTOR_CLONES
#endif
