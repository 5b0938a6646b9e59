/* SPDX-License-Identifier: MIT */
/**
 * @file The core library that stands beside lumi: memory and what is to be known of the processor.
 *
 * lumi asks for these four functions and nothing else; any library that exports them can stand in
 * its place, at link time or at load time. All four may be called from any thread at any time.
 */
#ifndef LUMCORE_H
#define LUMCORE_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Allocates size bytes on a 64-byte boundary. Null for a size below 1, or when memory is short.
 * The bytes are not set; the block is the caller's until lumFree.
 */
void* lumMalloc(int32_t size);

/** Gives back a block of lumMalloc; null is accepted. */
void lumFree(void* block);

/**
 * Stores the size in bytes of the largest data or unified cache that the calling core owns or
 * shares, as the processor enumerates it, else as the operating system tells it; figures above
 * INT32_MAX become INT32_MAX.
 *
 * Returns 0; -8 for a null pointer; another negative status where nothing is known, and the size is
 * then not to be used. The answer is found once per process.
 */
int32_t lumGetMaxCacheSizeB(int32_t* size);

/**
 * Bits of lumGetEnabledCpuFeatures. A bit is set where the processor reports the instructions and,
 * from AVX on, the operating system saves the registers that they need: 256-bit registers for AVX,
 * AVX2 and FMA, mask and 512-bit registers as well for AVX-512.
 */
enum {
  lumCpuSse2 = 1 << 0,
  lumCpuSse3 = 1 << 1,
  lumCpuSsse3 = 1 << 2,
  lumCpuSse41 = 1 << 3,
  lumCpuSse42 = 1 << 4,
  lumCpuAvx = 1 << 5, /**< with lumCpuSse42, the level that lumi is built for */
  lumCpuAvx2 = 1 << 6,
  lumCpuFma = 1 << 7,
  lumCpuAvx512f = 1 << 8 /**< the foundation of AVX-512 */
};

/** Returns the mask of the enabled features; bits without a name are zero. */
uint64_t lumGetEnabledCpuFeatures(void);

#ifdef __cplusplus
}
#endif

#endif
