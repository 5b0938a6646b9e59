// SPDX-License-Identifier: MIT
// Look-up in palettes: tables of the caller's, indexed by the low bits of a sample.
#include "lumi/lut_palette.h"

#include <cstring>
#include <limits>

#include "data/lut_bytes.hpp"
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

template <int count, typename T>
MaskedTables maskedTables(const T* const* table, int bitSize, int alpha = 0) {
  MaskedTables tables{{}, (uint32_t{1} << bitSize) - 1, static_cast<uint16_t>(alpha)};
  for (size_t c = 0; c < count; ++c)
    tables.table[c] = reinterpret_cast<const Byte*>(Unaligned<const T*>{table}[c]);
  return tables;
}

// The first bytes of a table over and over: every sample has an entry then, and no mask is needed.
void repeatTable(Lum8u* whole, size_t bytes, const Byte* table, size_t given) {
  for (size_t at = 0; at < bytes; at += given) std::memcpy(whole + at, table, given);
}

template <int entries>
void lookUpBytes(SourceRows src, TargetRows dst, Extent samples, const Lum8u* table, size_t given) {
  if (entries == 16) countPath(Path::LookUpSixteen);
  Lum8u whole[entries];
  repeatTable(whole, entries, table, given);
  lookUpBytesRows<entries, 0>(src, dst, samples, whole);
}

void lookUpPlane(SourceRows src, TargetRows dst, Extent samples, const Lum8u* table, size_t entries) {
  if (entries <= 16)
    lookUpBytes<16>(src, dst, samples, table, entries);
  else if (entries <= 64)
    lookUpBytes<64>(src, dst, samples, table, entries);
  else
    lookUpBytes<256>(src, dst, samples, table, entries);
}

template <int entryBytes>
void lookUpEntries(SourceRows src, TargetRows dst, Extent pixels, const Byte* table, size_t entries) {
  Lum8u whole[256 * entryBytes];
  if (entries < 256) {
    repeatTable(whole, sizeof whole, table, entries * entryBytes);
    table = whole;
  }
  lookUpRows<1, entryBytes, PixelLayout<1, 1, 1>>(src, dst, pixels, table);
}

template <typename S, int entryBytes, typename D>
LumStatus paletteOfEntries(const S* src, int srcStep, D* dst, int dstStep, LumiSize roi, const D* table,
                           int bitSize) {
  if (LumStatus fault = firstFault(pointers(src, dst, table), size(roi), bitSizeOf<S>(bitSize),
                                   rowStep(srcStep, roi, sizeof(S)), rowStep(dstStep, roi, entryBytes)))
    return fault;
  const PixelRows<Byte> to{rows(dst, dstStep), entryBytes};
  const auto* const bytes = reinterpret_cast<const Byte*>(table);
  const size_t entries = size_t{1} << bitSize;
  runFused(
      roi,
      [=](SourceRows s, TargetRows d, Extent pixels) {
        if constexpr (sizeof(S) == 2)
          lookUpMaskedRows<entryBytes, PixelLayout<1, 1, 1>>(s, d, pixels, maskedTables<1>(&bytes, bitSize));
        else if constexpr (entryBytes == 1)
          lookUpPlane(s, d, pixels, bytes, entries);
        else
          lookUpEntries<entryBytes>(s, d, pixels, bytes, entries);
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

template <typename T, typename From, typename To>
LumStatus paletteCall(const T* src, int srcStep, const T* dst, int dstStep, LumiSize roi,
                      const T* const* table, int bitSize) {
  constexpr int tables = From::kUsed;
  return firstFault(
      pointers(src, dst, table), size(roi), [=] { return eachTable<tables>(table); }, bitSizeOf<T>(bitSize),
      rowStep(srcStep, roi, kPixelBytes<T, From>), rowStep(dstStep, roi, kPixelBytes<T, To>));
}

// Tables of bytes for several channels, as many entries as a byte has values.
template <int count>
struct WholeTables {
  Lum8u entries[kByteTable * count];

  WholeTables(const Lum8u* const* table, int bitSize) {
    for (size_t c = 0; c < count; ++c)
      repeatTable(entries + c * kByteTable, kByteTable, Unaligned<const Lum8u*>{table}[c],
                  size_t{1} << bitSize);
  }
};

template <typename T, typename Layout>
LumStatus palettesOf(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi, const T* const* table,
                     int bitSize) {
  if (LumStatus fault = paletteCall<T, Layout, Layout>(src, srcStep, dst, dstStep, roi, table, bitSize))
    return fault;
  constexpr int tables = Layout::kUsed, stored = Layout::kStored;
  runFused(
      roi,
      [=](SourceRows s, TargetRows d, Extent pixels) {
        if constexpr (sizeof(T) == 2)
          lookUpMaskedRows<2, PixelLayout<tables, stored, stored>>(s, d, pixels,
                                                                   maskedTables<tables>(table, bitSize));
        else
          lookUpBytesOf<Layout>(s, d, pixels, WholeTables<tables>(table, bitSize).entries);
      },
      pixelRows<Layout>(src, srcStep), pixelRows<Layout>(dst, dstStep));
  return lumStatusOk;
}

// Three channels and an alpha: before them, or behind them when they are turned round. A value that no sample
// has leaves the destination's.
template <bool turned, typename T, typename From, typename To>
LumStatus palettesWithAlpha(const T* src, int srcStep, int alpha, T* dst, int dstStep, LumiSize roi,
                            const T* const* table, int bitSize) {
  if (LumStatus fault = paletteCall<T, From, To>(src, srcStep, dst, dstStep, roi, table, bitSize))
    return fault;
  constexpr Placed placed = turned ? Placed::BeforeAlphaTurned : Placed::BehindAlpha;
  using Pixel = PixelLayout<3, 3, 4, placed>;
  const bool stores = static_cast<uint32_t>(alpha) <= std::numeric_limits<T>::max();
  runFused(
      roi,
      [=](SourceRows s, TargetRows d, Extent pixels) {
        if constexpr (sizeof(T) == 2) {
          const auto tables = maskedTables<3>(table, bitSize, alpha);
          stores ? lookUpMaskedRows<2, Pixel, true>(s, d, pixels, tables)
                 : lookUpMaskedRows<2, Pixel>(s, d, pixels, tables);
        } else {
          const WholeTables<3> tables(table, bitSize);
          stores ? lookUpWithAlphaRows<placed>(s, d, pixels, tables.entries, static_cast<Lum8u>(alpha))
                 : lookUpRows<1, 1, Pixel>(s, d, pixels, tables.entries);
        }
      },
      pixelRows<From>(src, srcStep), pixelRows<To>(dst, dstStep));
  return lumStatusOk;
}

}  // namespace
}  // namespace lumi

using namespace lumi;
#include "bind/lut_palette.inc"
