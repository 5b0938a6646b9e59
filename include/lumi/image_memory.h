/* SPDX-License-Identifier: MIT */
/* Generated from registry/frame/image_memory.reg by tools/lumigen; edit that instead. */
/** @file Image memory. */
#ifndef LUMI_IMAGE_MEMORY_H
#define LUMI_IMAGE_MEMORY_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Allocates an image whose rows start on multiples of 64 bytes.
 *
 * The row step is the smallest multiple of 64 that holds width pixels; the block is height times
 * step bytes, taken from lumMalloc. With the 64-byte aligned blocks of the stock core library every
 * row starts on a 64-byte boundary.
 *
 * Returns the first pixel, or null: for a null step (nothing is written), for a width or height
 * below 1 (the step becomes 0), and when the allocation fails (the step is set). All arithmetic is
 * 32-bit and wraps, so sizes beyond 2 GiB must be ruled out by the caller. The image belongs to the
 * caller until lumiFree.
 *
 * Bytes a pixel decide alone: members of equal size are one implementation.
 *
 *   width      pixels in a row
 *   height     rows
 *   step       receives the distance between rows, in bytes
 */
Lum16s* lumiMalloc_16s_AC4(int width, int height, int* step);
Lum16s* lumiMalloc_16s_C1(int width, int height, int* step);
Lum16s* lumiMalloc_16s_C2(int width, int height, int* step);
Lum16s* lumiMalloc_16s_C3(int width, int height, int* step);
Lum16s* lumiMalloc_16s_C4(int width, int height, int* step);
Lum16u* lumiMalloc_16u_AC4(int width, int height, int* step);
Lum16u* lumiMalloc_16u_C1(int width, int height, int* step);
Lum16u* lumiMalloc_16u_C2(int width, int height, int* step);
Lum16u* lumiMalloc_16u_C3(int width, int height, int* step);
Lum16u* lumiMalloc_16u_C4(int width, int height, int* step);
Lum32f* lumiMalloc_32f_AC4(int width, int height, int* step);
Lum32f* lumiMalloc_32f_C1(int width, int height, int* step);
Lum32f* lumiMalloc_32f_C2(int width, int height, int* step);
Lum32f* lumiMalloc_32f_C3(int width, int height, int* step);
Lum32f* lumiMalloc_32f_C4(int width, int height, int* step);
Lum32fc* lumiMalloc_32fc_AC4(int width, int height, int* step);
Lum32fc* lumiMalloc_32fc_C1(int width, int height, int* step);
Lum32fc* lumiMalloc_32fc_C2(int width, int height, int* step);
Lum32fc* lumiMalloc_32fc_C3(int width, int height, int* step);
Lum32fc* lumiMalloc_32fc_C4(int width, int height, int* step);
Lum32s* lumiMalloc_32s_AC4(int width, int height, int* step);
Lum32s* lumiMalloc_32s_C1(int width, int height, int* step);
Lum32s* lumiMalloc_32s_C2(int width, int height, int* step);
Lum32s* lumiMalloc_32s_C3(int width, int height, int* step);
Lum32s* lumiMalloc_32s_C4(int width, int height, int* step);
Lum32sc* lumiMalloc_32sc_AC4(int width, int height, int* step);
Lum32sc* lumiMalloc_32sc_C1(int width, int height, int* step);
Lum32sc* lumiMalloc_32sc_C2(int width, int height, int* step);
Lum32sc* lumiMalloc_32sc_C3(int width, int height, int* step);
Lum32sc* lumiMalloc_32sc_C4(int width, int height, int* step);
Lum8u* lumiMalloc_8u_AC4(int width, int height, int* step);
Lum8u* lumiMalloc_8u_C1(int width, int height, int* step);
Lum8u* lumiMalloc_8u_C2(int width, int height, int* step);
Lum8u* lumiMalloc_8u_C3(int width, int height, int* step);
Lum8u* lumiMalloc_8u_C4(int width, int height, int* step);

/**
 * Gives back an image from any lumiMalloc member.
 *
 * Forwards to lumFree; null is accepted.
 *
 *   image      first pixel, as lumiMalloc returned it
 */
void lumiFree(void* image);

#ifdef __cplusplus
}
#endif

#endif
