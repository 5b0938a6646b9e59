/* SPDX-License-Identifier: MIT */
/** @file Sample types, records and status values shared by every operation. */
#ifndef LUMI_TYPES_H
#define LUMI_TYPES_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

typedef uint8_t Lum8u;
typedef int8_t Lum8s;
typedef uint16_t Lum16u;
typedef int16_t Lum16s;
typedef uint32_t Lum32u;
typedef int32_t Lum32s;
typedef int64_t Lum64s;
typedef float Lum32f;
typedef double Lum64f;

/** Complex samples: two adjacent real values, the real one first. */
typedef struct {
  Lum16s re, im;
} Lum16sc;
typedef struct {
  Lum16u re, im;
} Lum16uc;
typedef struct {
  Lum32s re, im;
} Lum32sc;
typedef struct {
  Lum32f re, im;
} Lum32fc;
typedef struct {
  Lum64f re, im;
} Lum64fc;

/** Size of a region of interest (ROI), in pixels. */
typedef struct {
  int width, height;
} LumiSize;

typedef struct {
  int x, y;
} LumiPoint;

typedef struct {
  int x, y, width, height;
} LumiRect;

/** How a result between two integers becomes one. */
typedef int32_t LumRoundMode;
enum {
  lumRoundTowardZero = 0,  /**< magnitude truncated */
  lumRoundNearestEven = 1, /**< to the nearest integer, ties to the even one */
  lumRoundHalfAway = 2     /**< to the nearest integer, ties away from zero */
};

/** How two samples are compared. Each operation tells which ones it takes. */
typedef int32_t LumCmpOp;
enum {
  lumCmpOpLess = 0,         /**< the first one is below the second */
  lumCmpOpLessEqual = 1,    /**< below it or equal to it */
  lumCmpOpEqual = 2,        /**< equal to it */
  lumCmpOpGreaterEqual = 3, /**< above it or equal to it */
  lumCmpOpGreater = 4       /**< above it */
};

/**
 * Where samples outside an image come from: a type, and flags of the sides where they are in memory. On
 * flagged sides the real samples are used, on the others the type decides; all four flags are the same as
 * lumiBorderInMemory. Each operation tells which types it takes.
 */
typedef int32_t LumiBorderType;
enum {
  lumiBorderConst = 0,       /**< a constant given by the caller */
  lumiBorderReplicate = 1,   /**< the nearest edge sample */
  lumiBorderMirror = 3,      /**< reflected about the edge sample: -1 takes 1, -2 takes 2 */
  lumiBorderMirrorEdge = 4,  /**< reflected with the edge sample repeated: -1 takes 0, -2 takes 1 */
  lumiBorderInMemory = 6,    /**< the samples outside are in memory and are read */
  lumiBorderTransparent = 7, /**< destination pixels that have no source pixel stay */

  lumiBorderInMemoryTop = 0x10,    /**< flag: rows above are in memory */
  lumiBorderInMemoryBottom = 0x20, /**< flag: rows below are in memory */
  lumiBorderInMemoryLeft = 0x40,   /**< flag: columns to the left are in memory */
  lumiBorderInMemoryRight = 0x80   /**< flag: columns to the right are in memory */
};

/** The window of a filter: ten times its width plus its height. Each operation tells which ones it takes. */
typedef int32_t LumiMaskSize;
enum {
  lumiMask1x3 = 13, /**< one column, three rows */
  lumiMask1x5 = 15,
  lumiMask3x1 = 31, /**< three columns, one row */
  lumiMask3x3 = 33,
  lumiMask5x1 = 51,
  lumiMask5x5 = 55
};

/** A sample type as an argument. Each operation tells which ones it takes. */
typedef int32_t LumiDataType;
enum {
  lumiData8u = 1,
  lumiData16u = 5,
  lumiData16s = 7,
  lumiData32s = 11,
  lumiData32f = 13,
  lumiData64f = 19
};

/** A kernel made ready for lumiFilterBorder, in memory of the caller's. */
typedef struct LumiFilterBorderSpec LumiFilterBorderSpec;

/** Weights of lumiThresholdAdaptiveGauss, in memory of the caller's. */
typedef struct LumiThresholdAdaptiveGaussSpec LumiThresholdAdaptiveGaussSpec;
/** Histograms of oriented gradients: how lumiHOG divides a window, and counts. */
typedef struct {
  Lum32s blockOrder;   /**< 0: blocks of a descriptor row after row; otherwise column after column */
  Lum32s cellSize;     /**< side of a cell in pixels, 2 to 16 */
  Lum32s blockSize;    /**< side of a block in pixels: twice that of a cell */
  Lum32s blockStride;  /**< from one block to the next in pixels, a positive multiple of cellSize */
  Lum32s binCount;     /**< bins of a half turn, 2 to 16 */
  Lum32f sigma;        /**< of the Gaussian weights of a block's pixels, above 0 */
  Lum32f clipping;     /**< limit of a normalised value, above 0 */
  Lum32s windowWidth;  /**< at least blockSize, and larger by a multiple of blockStride */
  Lum32s windowHeight; /**< the same */
} LumiHOGConfig;

/** Weights of lumiFilterBilateralBorder, in memory of the caller's. */
typedef struct LumiFilterBilateralBorderSpec LumiFilterBilateralBorderSpec;
/** Weights of lumiFilterBilateral, in memory of the caller's. */
typedef struct LumiFilterBilateralSpec LumiFilterBilateralSpec;

/** A configuration made ready for lumiHOG, in memory of the caller's. */
typedef struct LumiHOGSpec LumiHOGSpec;

/** 2 asks for the accurate way of an operation that has two; any other value for the fast one. */
typedef int32_t LumAlgorithmHint;

/** How a resize finds a destination pixel. Each operation tells which ones it takes. */
typedef int32_t LumiInterpolationType;
enum {
  lumInterpNone = 0,    /**< always refused */
  lumInterpNearest = 1, /**< the nearest source pixel */
  lumInterpLinear = 2,  /**< two taps an axis */
  lumInterpCubic = 6,   /**< four taps an axis */
  lumInterpSuper = 8,   /**< average of the covered area; only to smaller sizes */
  lumInterpLanczos = 16 /**< two or three lobes */
};

/** Source pixels that an operation reads outside a tile, on each side. */
typedef struct {
  Lum32u left, top, right, bottom;
} LumiBorderSize;

/** Plans of a resize, in memory of the caller's: of 8u, 16u, 16s and 32f, and of 64f. */
typedef struct LumiResizeSpec LumiResizeSpec;
typedef struct LumiResizeSpec64f LumiResizeSpec64f;

/** Fast Fourier transforms: of complex images, of real ones, and of integers, which is made by InitAlloc
 * alone. */
typedef struct LumiFFTSpec_C_32fc LumiFFTSpec_C_32fc;
typedef struct LumiFFTSpec_R_32f LumiFFTSpec_R_32f;
typedef struct LumiFFTSpec_R_32s LumiFFTSpec_R_32s;

/** The same for images of any size. */
typedef struct LumiDFTSpec_C_32fc LumiDFTSpec_C_32fc;
typedef struct LumiDFTSpec_R_32f LumiDFTSpec_R_32f;
typedef struct LumiDFTSpec_R_32s LumiDFTSpec_R_32s;

/** Cosine transforms of images, and their inverses. */
typedef struct LumiDCTFwdSpec_32f LumiDCTFwdSpec_32f;
typedef struct LumiDCTInvSpec_32f LumiDCTInvSpec_32f;

/** Levels between which lumiHistogram counts, in memory of the caller's. */
typedef struct LumiHistogramSpec LumiHistogramSpec;

/** Moments of an image, as floats or as integers: 400 bytes. */
typedef struct LumiMomentState LumiMomentState;

/** Filters of a wavelet transform: of its forward direction, and of its inverse, which their InitAlloc
 * allocates. */
typedef struct LumiWTFwdSpec_32f_C1R LumiWTFwdSpec_32f_C1R;
typedef struct LumiWTFwdSpec_32f_C3R LumiWTFwdSpec_32f_C3R;
typedef struct LumiWTInvSpec_32f_C1R LumiWTInvSpec_32f_C1R;
typedef struct LumiWTInvSpec_32f_C3R LumiWTInvSpec_32f_C3R;

/** What lumiGetLibVersion returns: a constant record. */
typedef struct {
  int major;               /**< release number */
  int minor;               /**< update within the release */
  int majorBuild;          /**< 0 in a release build */
  int build;               /**< revision of the sources that the build was made from */
  char targetCode[4];      /**< processor level, zero padded: "k5" is AVX */
  const char* name;        /**< short name, processor level, target code */
  const char* versionText; /**< "1.0.0 (r1)" */
  const char* buildDate;   /**< "Nov 21 2026" */
} LumLibraryVersion;

/** Result of an operation: 0 success, negative error, positive warning. */
typedef int32_t LumStatus;

enum {
  lumStatusOk = 0,

  /* Warnings: the result was produced, with a reservation. */
  lumStatusNothingToDo = 1,           /**< a size was zero, nothing was done */
  lumStatusLogOfZero = 2,             /**< zero sample in an integer logarithm; the result there is 0 */
  lumStatusSqrtOfNegative = 3,        /**< negative sample under a root; 0 there in integer members */
  lumStatusDivideByZeroWarning = 6,   /**< zero divisor in the data; a substitute was stored */
  lumStatusLogSingularity = 7,        /**< zero sample in a float logarithm */
  lumStatusLogDomain = 8,             /**< negative sample in a float logarithm */
  lumStatusQuadNotParallelogram = 28, /**< the four points are no parallelogram; best fit stored */
  lumStatusNoIntersection = 29,       /**< ROI and source image do not overlap */
  lumStatusEmptyDestination = 30,     /**< no destination pixel inside the transformed region */
  lumStatusSizeRoundedToEven = 35,    /**< an odd size was rounded down to even */
  lumStatusEvenMedianWeight = 39,     /**< an even centre weight was replaced by an odd one */
  lumStatusSizeAboveSpec = 48,        /**< a size is larger than the spec object was made for */

  /* Errors. */
  lumStatusBadArgument = -5,              /**< a plain argument outside its allowed set */
  lumStatusBadSize = -6,                  /**< ROI width or height below 1, or another size out of range */
  lumStatusBadRange = -7,                 /**< lower bound above upper bound */
  lumStatusNullPointer = -8,              /**< a required pointer is null */
  lumStatusNoMemory = -9,                 /**< an allocation failed */
  lumStatusDivisionByZero = -10,          /**< the constant divisor is zero */
  lumStatusOutOfRange = -11,              /**< a numeric argument outside its range */
  lumStatusBadDataType = -12,             /**< a data type that this operation does not take */
  lumStatusBadDataRange = -13,            /**< upper data bound not above the lower one */
  lumStatusBadStep = -14,                 /**< a row step below 1 */
  lumStatusBadFftOrder = -15,             /**< a transform order above its limit */
  lumStatusBadTransformFlag = -16,        /**< normalisation flag not 1, 2, 4 or 8 */
  lumStatusBadContext = -17,              /**< a spec or state object of another kind */
  lumStatusBadThresholdOrder = -18,       /**< lower threshold above the upper one */
  lumStatusZeroMoment = -20,              /**< zeroth moment too small to divide by */
  lumStatusBadMirrorAxis = -21,           /**< flip axis not one of the three */
  lumStatusBadInterpolation = -22,        /**< interpolation mode not offered */
  lumStatusBadResizeFactor = -23,         /**< a resize factor not positive */
  lumStatusBadLength = -26,               /**< a row length or count below 1 */
  lumStatusBadMaskSize = -33,             /**< mask size not offered or too small */
  lumStatusBadAnchor = -34,               /**< anchor outside the mask */
  lumStatusBadEpsilon = -36,              /**< a tolerance is negative */
  lumStatusStepTooSmall = -37,            /**< a row step smaller than the row it must hold */
  lumStatusBadChannel = -47,              /**< a channel number outside its range */
  lumStatusBadAlphaType = -50,            /**< alpha composition type out of range */
  lumStatusZeroDivisor = -51,             /**< the integer normalising divisor of a kernel is zero */
  lumStatusBadChannelCount = -53,         /**< number of channels not among those accepted */
  lumStatusBadCoefficients = -56,         /**< coefficients give a degenerate or non-convex quadrangle */
  lumStatusDegenerateRect = -57,          /**< rectangle less than one pixel step wide or high */
  lumStatusBadQuadrangle = -58,           /**< quadrangle degenerate or not convex */
  lumStatusZeroMask = -59,                /**< a morphology mask has no non-zero element */
  lumStatusBadChannelOrder = -60,         /**< an index in a channel order table out of range */
  lumStatusTooFewLutLevels = -106,        /**< fewer than two look-up levels */
  lumStatusTooFewHistogramLevels = -107,  /**< fewer than two histogram levels */
  lumStatusOddStep = -108,                /**< a step that is not a multiple of the sample size */
  lumStatusBadNoiseLevel = -125,          /**< noise level negative */
  lumStatusResizedTooSmall = -201,        /**< resized size below the format's minimum */
  lumStatusZeroQualityDenominator = -210, /**< a denominator of the quality index is zero */
  lumStatusBadCenterWeight = -211,        /**< centre weight below 1 */
  lumStatusBadDecimationFraction = -212,  /**< decimation fraction not accepted */
  lumStatusBadRoundMode = -213,           /**< rounding mode outside the accepted set */
  lumStatusBadBorder = -225,              /**< border type not among those offered */
  lumStatusOddSize = -227,                /**< a size or offset that must be even is odd */
  lumStatusBadAlgorithmFlags = -228,      /**< a field of a packed algorithm word is bad */
  lumStatusBadWarpDirection = -231,       /**< direction neither 0 nor 1 */
  lumStatusUnsupportedMode = -9999        /**< a mode or combination that this member does not offer */
};

#ifdef __cplusplus
}
#endif

#endif
