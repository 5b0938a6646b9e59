// SPDX-License-Identifier: MIT
// Look-up in palettes: tables of the caller's, indexed by the low bits of a sample.
#include "lumi/lut_palette.h"

#include <cstring>
#include <limits>

#include "frame/check.hpp"
#include "frame/layout.hpp"
#include "frame/rows.hpp"
#include "kernels/data/lut.hpp"
#include "kernels/unaligned.hpp"

namespace lumi {
namespace {

using namespace check;

template <typename S>
LumStatus bitSizeOf(int bitSize) {
  return bitSize < 1 || bitSize > int{8 * sizeof(S)} ? lumStatusOutOfRange : lumStatusOk;
}

// Whether a row of the ROI fits into a step. The product does not wrap.
LumStatus rowStep(int step, LumiSize roi, int pixelBytes) {
  return step < int64_t{roi.width} * pixelBytes ? lumStatusBadStep : lumStatusOk;
}

constexpr uint32_t maskOf(int bitSize) { return (uint32_t{1} << bitSize) - 1; }

// Bytes of one table, which is repeated until a shuffle's sixteen entries, or four times as many, are there.
template <int entries>
void lookUpBytes(SourceRows src, TargetRows dst, Extent samples, const Lum8u* table, size_t given) {
  if (entries == 16) countPath(Path::LookUpSixteen);
  alignas(16) Lum8u repeated[entries];
  for (size_t i = 0; i < entries; i += given) std::memcpy(repeated + i, table, given);
  lookUpBytesRows<entries, 0>(src, dst, samples, repeated);
}

void lookUpPlane(SourceRows src, TargetRows dst, Extent samples, const Lum8u* table, int bitSize) {
  const size_t given = size_t{1} << bitSize;
  if (bitSize <= 4)
    lookUpBytes<16>(src, dst, samples, table, given);
  else if (bitSize <= 6)
    lookUpBytes<64>(src, dst, samples, table, given);
  else
    lookUpBytes<256>(src, dst, samples, table, given);
}

template <typename S, int entryBytes, typename D>
LumStatus paletteOfEntries(const S* src, int srcStep, D* dst, int dstStep, LumiSize roi, const D* table,
                           int bitSize) {
  if (LumStatus fault = firstFault(pointers(src, dst, table), size(roi), bitSizeOf<S>(bitSize),
                                   rowStep(srcStep, roi, sizeof(S)), rowStep(dstStep, roi, entryBytes)))
    return fault;
  const PixelRows<Byte> to{rows(dst, dstStep), entryBytes};
  const auto* const entries = reinterpret_cast<const Byte*>(table);
  runFused(
      roi,
      [=](SourceRows s, TargetRows d, Extent pixels) {
        if constexpr (sizeof(S) == 1 && entryBytes == 1)
          lookUpPlane(s, d, pixels, entries, bitSize);
        else
          lookUpRows<sizeof(S), entryBytes, 1, 1, 1, Placed::AsTheyAre>(s, d, pixels,
                                                                        {{entries}, maskOf(bitSize)});
      },
      pixelRows<C1>(src, srcStep), to);
  return lumStatusOk;
}

template <typename S, typename D, typename>
LumStatus paletteOf(const S* src, int srcStep, D* dst, int dstStep, LumiSize roi, const D* table,
                    int bitSize) {
  return paletteOfEntries<S, sizeof(D)>(src, srcStep, dst, dstStep, roi, table, bitSize);
}
template <typename S, typename Layout>
LumStatus paletteOf(const S* src, int srcStep, S* dst, int dstStep, LumiSize roi, const S* table,
                    int bitSize) {
  return paletteOfEntries<S, sizeof(S)>(src, srcStep, dst, dstStep, roi, table, bitSize);
}
// Entries of three bytes.
template <typename S, typename, typename>
LumStatus paletteOfTriples(const S* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                           const Lum8u* table, int bitSize) {
  return paletteOfEntries<S, 3>(src, srcStep, dst, dstStep, roi, table, bitSize);
}

template <int tables, typename T>
LumStatus eachTable(const T* const* table) {
  for (int c = 0; c < tables; ++c)
    if (!Unaligned<const T*>{table}[c]) return lumStatusNullPointer;
  return lumStatusOk;
}

template <int tables, typename T>
LookUp lookUpOf(const T* const* table, int bitSize) {
  LookUp lookUp{{}, maskOf(bitSize)};
  for (size_t c = 0; c < tables; ++c)
    lookUp.table[c] = reinterpret_cast<const Byte*>(Unaligned<const T*>{table}[c]);
  return lookUp;
}

template <typename T, typename From, typename To>
LumStatus paletteCall(const T* src, int srcStep, const T* dst, int dstStep, LumiSize roi,
                      const T* const* table, int bitSize) {
  constexpr int tables = From::kUsed;
  return firstFault(
      pointers(src, dst, table), size(roi), [=] { return eachTable<tables>(table); }, bitSizeOf<T>(bitSize),
      rowStep(srcStep, roi, kPixelBytes<T, From>), rowStep(dstStep, roi, kPixelBytes<T, To>));
}

template <typename T, typename Layout>
LumStatus palettesOf(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi, const T* const* table,
                     int bitSize) {
  if (LumStatus fault = paletteCall<T, Layout, Layout>(src, srcStep, dst, dstStep, roi, table, bitSize))
    return fault;
  constexpr int tables = Layout::kUsed, stored = Layout::kStored;
  runFused(
      roi,
      [lookUp = lookUpOf<tables>(table, bitSize)](SourceRows s, TargetRows d, Extent pixels) {
        lookUpRows<sizeof(T), sizeof(T), tables, stored, stored, Placed::AsTheyAre>(s, d, pixels, lookUp);
      },
      pixelRows<Layout>(src, srcStep), pixelRows<Layout>(dst, dstStep));
  return lumStatusOk;
}

// Three channels and an alpha: before them, or behind them when they are turned round.
template <bool turned, typename T, typename From, typename To>
LumStatus palettesWithAlpha(const T* src, int srcStep, int alpha, T* dst, int dstStep, LumiSize roi,
                            const T* const* table, int bitSize) {
  if (LumStatus fault = paletteCall<T, From, To>(src, srcStep, dst, dstStep, roi, table, bitSize))
    return fault;
  constexpr Placed placed = turned ? Placed::BeforeAlphaTurned : Placed::BehindAlpha;
  const auto value = static_cast<uint32_t>(alpha);
  runFused(
      roi,
      [=, lookUp = lookUpOf<3>(table, bitSize)](SourceRows s, TargetRows d, Extent pixels) {
        lookUpRows<sizeof(T), sizeof(T), 3, 3, 4, placed>(s, d, pixels, lookUp);
        if (value <= std::numeric_limits<T>::max())
          setAlphaRows<sizeof(T)>({d.first + (turned ? 3 * sizeof(T) : 0), d.step}, pixels, value);
      },
      pixelRows<From>(src, srcStep), pixelRows<To>(dst, dstStep));
  return lumStatusOk;
}

}  // namespace
}  // namespace lumi

using namespace lumi;
#include "bind/lut_palette.inc"
