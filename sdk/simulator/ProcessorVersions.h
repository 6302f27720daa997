#pragma once

// A function with this attribute is compiled twice, and the program chooses the faster version that the
// processor supports when it starts. Sanitizers do not support such functions.
#if defined(__x86_64__) && !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)                   \
    && !defined(__clang__)
#define CORVIX_PROCESSOR_VERSIONS __attribute__((target_clones("avx2", "default")))
#else
#define CORVIX_PROCESSOR_VERSIONS
#endif

// A function that is called in loops of such functions, and has to become part of them.
#define CORVIX_PROCESSOR_INLINE inline __attribute__((always_inline))
