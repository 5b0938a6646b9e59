// SPDX-License-Identifier: MIT
// The functions of multiplication of real samples, for each way of scaling.
#pragma once

#include "kernels/arithmetic/combine_functions.hpp"
#include "kernels/arithmetic/mul.hpp"
#include "kernels/arithmetic/products.hpp"

namespace lumi::simd {

template <typename T>
struct Product;

template <>
struct Product<uint8_t> {
  Samples<uint8_t> operator()(Samples<uint8_t> a, Samples<uint8_t> b) const {
    return narrowed<uint8_t>(products(a, b), [](auto x) { return min(x, broadcastLike(x, uint16_t{255})); });
  }
};

template <>
struct Product<uint16_t> {
  Samples<uint16_t> operator()(Samples<uint16_t> a, Samples<uint16_t> b) const {
    const Samples<uint16_t> fits = isEqual(multiplyHigh(a, b), broadcast<uint16_t>(0));
    return ifThenElse(fits, a * b, broadcast<uint16_t>(0xFFFF));
  }
};

template <>
struct Product<int16_t> {
  Samples<int16_t> operator()(Samples<int16_t> a, Samples<int16_t> b) const {
    return narrowed<int16_t>(products(a, b), [](auto x) { return x; });
  }
};

template <>
struct Product<float> {
  template <typename V>
  V operator()(V a, V b) const {
    return a * b;
  }
};

// Words divided by 2^s, 1 <= s <= 16, to nearest, ties to even: (x + 2^(s-1) - 1 + q) >> s, where q is the
// last bit of x >> s. The sum may need a bit more than a word: the rounding-up average of x - 1 and the rest
// is its half. (At x = 0 the average is 2^(s-2), rounded down, which the last shift drops.)
class WordQuotient {
 public:
  explicit WordQuotient(int s)
      : toLast_(s), rest_(s - 1), bias_(broadcast(static_cast<uint16_t>((uint32_t{1} << (s - 1)) - 1))) {}

  Samples<uint16_t> operator()(Samples<uint16_t> x) const {
    const Samples<uint16_t> one = broadcast<uint16_t>(1);
    return averageUp(subSaturated(x, one), bias_ + ((x >> toLast_) & one)) >> rest_;
  }

 private:
  Shift toLast_, rest_;
  Samples<uint16_t> bias_;
};

// The same of dwords, by the formula as it stands: the caller sees to it that the sum does not wrap.
template <typename W>
class DwordQuotient {
 public:
  explicit DwordQuotient(int s) : shift_(s), bias_(broadcast(static_cast<W>((uint32_t{1} << (s - 1)) - 1))) {}

  Samples<W> operator()(Samples<W> x) const {
    return (x + bias_ + ((x >> shift_) & broadcast<W>(1))) >> shift_;
  }

 private:
  Shift shift_;
  Samples<W> bias_;
};

// Products of bytes are words; of 16-bit signed samples at most 2^30 in size, with s <= 30. Of unsigned ones
// they are below 2^32 - 2^17 + 2, so that the sum stays below 2^32 up to s = 17. All quotients are below what
// the narrowing instruction takes for negative.
inline constexpr int kMostOfWholeProduct = 17;

template <typename T>
struct DividedProduct {
  using Quotient =
      std::conditional_t<sizeof(T) == 1, WordQuotient,
                         DwordQuotient<std::conditional_t<std::is_signed_v<T>, int32_t, uint32_t>>>;
  Quotient quotient;

  explicit DividedProduct(int s) : quotient(s) {}
  Samples<T> operator()(Samples<T> a, Samples<T> b) const { return narrowed<T>(products(a, b), quotient); }
};

// Unsigned 16-bit products beyond that. Of the low half only counts whether it is zero, to tell a tie from
// more: a bit below the place of ties does.
struct DividedHighProduct {
  WordQuotient quotient;

  explicit DividedHighProduct(int s) : quotient(s - 16) {}
  Samples<uint16_t> operator()(Samples<uint16_t> a, Samples<uint16_t> b) const {
    return quotient(multiplyHigh(a, b) | min(a * b, broadcast<uint16_t>(1)));
  }
};

template <typename T>
struct Functions<Mul, T> {
  template <typename Run>
  [[gnu::always_inline]] static void choose(Scaling scaling, const Run& run) {
    if constexpr (std::is_same_v<T, uint16_t>)
      if (scaling.bits > kMostOfWholeProduct) return run(DividedHighProduct(scaling.bits));
    chooseByPath<Product<T>, DividedProduct<T>, Multiplied<Product<T>, T>>(scaling, run);
  }
};

template <>
struct Functions<Mul, float> {
  template <typename Run>
  [[gnu::always_inline]] static void choose(Scaling, const Run& run) {
    run(Product<float>());
  }
};

}  // namespace lumi::simd
