/* SPDX-License-Identifier: MIT */
/**
 * @file The core library that stands beside lumi: memory and what is to be known of the processor.
 *
 * lumi asks for these four functions and nothing else; any library that exports them can stand in
 * its place, at link time or at load time.
 */
#ifndef LUMCORE_H
#define LUMCORE_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/** Allocates size bytes on a 64-byte boundary. Null for a size below 1, or when memory is short. */
void* lumMalloc(int32_t size);

/** Gives back a block of lumMalloc; null is accepted. */
void lumFree(void* block);

/**
 * Stores the size in bytes of the largest cache that the calling processor's cores share or own.
 * Returns 0, or a negative status where it cannot be found out (-8 for a null pointer); the size is
 * then not to be used. The answer is found once per process; any thread may ask.
 */
int32_t lumGetMaxCacheSizeB(int32_t* size);

/** Bits of lumGetEnabledCpuFeatures: what the processor has and the operating system saves. */
enum {
  lumCpuSse2 = 1 << 0,
  lumCpuSse3 = 1 << 1,
  lumCpuSsse3 = 1 << 2,
  lumCpuSse41 = 1 << 3,
  lumCpuSse42 = 1 << 4,
  lumCpuAvx = 1 << 5, /**< the level that lumi is built for */
  lumCpuAvx2 = 1 << 6,
  lumCpuFma = 1 << 7,
  lumCpuAvx512f = 1 << 8
};

/** Returns the mask of the enabled features. */
uint64_t lumGetEnabledCpuFeatures(void);

#ifdef __cplusplus
}
#endif

#endif
