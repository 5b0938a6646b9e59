// SPDX-License-Identifier: MIT
// Sample types by the words of names.
#pragma once

#include <cstdio>
#include <cstdlib>
#include <string>
#include <type_traits>

#include "lumi/types.h"

namespace test {

template <typename... T>
struct Types {};
using CommonTypes = Types<Lum8u, Lum8s, Lum16u, Lum16s, Lum32u, Lum32s, Lum32f>;
using AllTypes = Types<Lum8u, Lum8s, Lum16u, Lum16s, Lum32u, Lum32s, Lum32f, Lum64s, Lum64f>;

[[noreturn]] inline void abortOver(const char* what, const std::string& word) {
  std::fprintf(stderr, "the tests know no %s '%s'\n", what, word.c_str());
  std::abort();
}

// Whether a type is that of the samples or, in complex ones, of their components. Bits and samples of three
// bytes are in bytes.
template <typename T>
bool isTypeOf(const std::string& token) {
  const auto isOneOf = [&](auto... words) { return ((token == words) || ...); };
  if constexpr (std::is_same_v<T, Lum8u>) return isOneOf("8u", "1u", "24u");
  if constexpr (std::is_same_v<T, Lum8s>) return isOneOf("8s");
  if constexpr (std::is_same_v<T, Lum16u>) return isOneOf("16u", "16uc");
  if constexpr (std::is_same_v<T, Lum16s>) return isOneOf("16s", "16sc");
  if constexpr (std::is_same_v<T, Lum32u>) return isOneOf("32u");
  if constexpr (std::is_same_v<T, Lum32s>) return isOneOf("32s", "32sc");
  if constexpr (std::is_same_v<T, Lum32f>) return isOneOf("32f", "32fc");
  if constexpr (std::is_same_v<T, Lum64s>) return isOneOf("64s");
  if constexpr (std::is_same_v<T, Lum64f>) return isOneOf("64f", "64fc");
}

template <typename F, typename T, typename... More>
auto withTypeOf(const std::string& token, F f, Types<T, More...>) {
  if constexpr (sizeof...(More) > 0)
    if (!isTypeOf<T>(token)) return withTypeOf(token, f, Types<More...>());
  if (!isTypeOf<T>(token)) abortOver("sample type, or not here,", token);
  return f(T());
}

// Calls f with a value of the sample type, which has to be in the list.
template <typename F, typename List = CommonTypes>
auto withType(const std::string& token, F f, List types = {}) {
  return withTypeOf(token, f, types);
}

inline bool isComplex(const std::string& token) { return token.back() == 'c'; }
inline bool isFloating(const std::string& token) { return token.find('f') != std::string::npos; }

// Of one sample with all its components.
inline int sampleBytes(const std::string& token) {
  if (token == "24u") return 3;
  const auto bytes = [](auto sample) { return static_cast<int>(sizeof sample); };
  return withType(token, bytes, AllTypes()) * (isComplex(token) ? 2 : 1);
}

}  // namespace test
