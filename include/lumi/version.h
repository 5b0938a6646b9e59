/* SPDX-License-Identifier: MIT */
/* Generated from registry/frame/version.reg by tools/lumigen; edit that instead. */
/** @file Version. */
#ifndef LUMI_VERSION_H
#define LUMI_VERSION_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Tells which build of the library is running.
 *
 * Returns the constant version record, the same pointer at every call; it is neither written nor
 * freed by the caller.
 */
const LumLibraryVersion* lumiGetLibVersion(void);

#ifdef __cplusplus
}
#endif

#endif
