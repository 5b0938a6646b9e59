// SPDX-License-Identifier: MIT
// FFTW: transforms of single precision, by plans that are measured before any row is timed, on one thread.
// Its results have no scale, and are rounded otherwise than ours.
#pragma once

#include "bench/harness.hpp"

namespace bench::fftw {

enum class Direction { forward, inverse };

[[gnu::weak]] Library library();

// Complex samples are images of two channels.
[[gnu::weak]] Peer complexImage(View src, View dst, Direction direction);
// Real images; the half of the spectrum that is not redundant lies in memory of the peer's own.
[[gnu::weak]] Peer realForward(View src);
[[gnu::weak]] Peer realInverse(View dst);
// Cosine transforms, forward DCT-II and inverse DCT-III, of an image as a whole, and of its memory as blocks
// of 64 values each.
[[gnu::weak]] Peer cosine(View src, View dst, Direction direction);
[[gnu::weak]] Peer cosine8x8(View src, View dst, Direction direction);

}  // namespace bench::fftw
