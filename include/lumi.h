/* SPDX-License-Identifier: MIT */
/* Generated from the registry by tools/lumigen; edit that instead. */
/** @file The whole public interface of lumi. */
#ifndef LUMI_H
#define LUMI_H

#include "lumi/types.h"

#include "lumi/add_sub.h"
#include "lumi/best_threshold.h"
#include "lumi/bits.h"
#include "lumi/block_min_max.h"
#include "lumi/border.h"
#include "lumi/compare.h"
#include "lumi/convert.h"
#include "lumi/copy.h"
#include "lumi/copy_channels.h"
#include "lumi/count_in_range.h"
#include "lumi/div.h"
#include "lumi/dot_prod.h"
#include "lumi/extremes.h"
#include "lumi/filter_border.h"
#include "lumi/histogram.h"
#include "lumi/image_memory.h"
#include "lumi/logic.h"
#include "lumi/lut.h"
#include "lumi/lut_palette.h"
#include "lumi/min_max.h"
#include "lumi/min_max_index.h"
#include "lumi/mirror.h"
#include "lumi/moments.h"
#include "lumi/mul.h"
#include "lumi/mul_scale.h"
#include "lumi/norm.h"
#include "lumi/quality_index.h"
#include "lumi/resize.h"
#include "lumi/sad.h"
#include "lumi/scale.h"
#include "lumi/set.h"
#include "lumi/shift.h"
#include "lumi/ssim.h"
#include "lumi/sum.h"
#include "lumi/swap_channels.h"
#include "lumi/threshold.h"
#include "lumi/transpose.h"
#include "lumi/unary.h"
#include "lumi/version.h"

#endif
