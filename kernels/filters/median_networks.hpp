// SPDX-License-Identifier: MIT
// Medians by networks of exchanges, over anything that has min and max: vectors of samples here, words of
// bits in tests. Of samples that are equal in order but not in bits (zeros of both signs), and of floats that
// are not numbers, an exchange still gives both; so a result is one of the operands, bit for bit.
#pragma once

namespace lumi {

// Samples in ascending order.
template <typename V, int n>
struct Sorted {
  V at[n];
};

// Where samples have no order, both of min and max give their second operand.
template <typename V>
[[gnu::always_inline]] inline void exchange(V& low, V& high) {
  const V smaller = min(low, high);
  high = max(high, low);
  low = smaller;
}

template <typename V>
[[gnu::always_inline]] inline Sorted<V, 2> sorted(V a, V b) {
  exchange(a, b);
  return {{a, b}};
}

template <typename V>
[[gnu::always_inline]] inline Sorted<V, 3> sorted(V a, V b, V c) {
  exchange(a, b);
  exchange(b, c);
  exchange(a, b);
  return {{a, b, c}};
}

template <typename V>
[[gnu::always_inline]] inline Sorted<V, 5> sorted(V a, V b, V c, V d, V e) {
  exchange(a, b);
  exchange(d, e);
  exchange(c, e);
  exchange(c, d);
  exchange(a, d);
  exchange(a, c);
  exchange(b, e);
  exchange(b, d);
  exchange(b, c);
  return {{a, b, c, d, e}};
}

// The median of x and both limits, where low <= high.
template <typename V>
[[gnu::always_inline]] inline V clamped(V x, V low, V high) {
  return max(low, min(x, high));
}

template <typename V>
[[gnu::always_inline]] inline V median(V a, V b, V c) {
  exchange(a, b);
  return clamped(c, a, b);
}

// The second and the third of four, which are two pairs in order.
template <typename V>
[[gnu::always_inline]] inline Sorted<V, 2> middleOf(const Sorted<V, 2>& a, const Sorted<V, 2>& b) {
  return sorted(max(a.at[0], b.at[0]), min(a.at[1], b.at[1]));
}

// The median of five is that of one and of the two in the middle of the other four.
template <typename V>
[[gnu::always_inline]] inline V median(V a, V b, V c, V d, V e) {
  const Sorted<V, 2> middle = middleOf(sorted(a, b), sorted(c, d));
  return clamped(e, middle.at[0], middle.at[1]);
}

// Of nine in three triples the first ones have at most one that can be the median, their largest: five or
// more are above each of the others. So it is with the last ones; and of the middle ones it is their median.
template <typename V>
struct TwoOfThreeTriples {
  V low, high;
  Sorted<V, 2> middle;

  [[gnu::always_inline]] TwoOfThreeTriples(const Sorted<V, 3>& a, const Sorted<V, 3>& b)
      : low(max(a.at[0], b.at[0])), high(min(a.at[2], b.at[2])), middle(sorted(a.at[1], b.at[1])) {}

  [[gnu::always_inline]] V medianWith(const Sorted<V, 3>& c) const {
    return median(max(low, c.at[0]), clamped(c.at[1], middle.at[0], middle.at[1]), min(high, c.at[2]));
  }
};

// Merging goes by even and odd places: both merged, neighbours from different ones are exchanged (Batcher
// 1968).
template <typename V>
[[gnu::always_inline]] inline Sorted<V, 4> merged(const Sorted<V, 2>& a, const Sorted<V, 2>& b) {
  Sorted<V, 2> even = sorted(a.at[0], b.at[0]), odd = sorted(a.at[1], b.at[1]);
  exchange(odd.at[0], even.at[1]);
  return {{even.at[0], odd.at[0], even.at[1], odd.at[1]}};
}

template <typename V>
[[gnu::always_inline]] inline Sorted<V, 6> merged(const Sorted<V, 3>& a, const Sorted<V, 3>& b) {
  Sorted<V, 2> odd = sorted(a.at[1], b.at[1]);
  Sorted<V, 4> even = merged(Sorted<V, 2>{{a.at[0], a.at[2]}}, Sorted<V, 2>{{b.at[0], b.at[2]}});
  exchange(odd.at[0], even.at[1]);
  exchange(odd.at[1], even.at[2]);
  return {{even.at[0], odd.at[0], even.at[1], odd.at[1], even.at[2], even.at[3]}};
}

// To where the result stays, since it is more than there are registers.
template <typename V>
[[gnu::always_inline]] inline void merge(const Sorted<V, 5>& a, const Sorted<V, 5>& b,
                                         Sorted<V, 10>& result) {
  Sorted<V, 4> odd = merged(Sorted<V, 2>{{a.at[1], a.at[3]}}, Sorted<V, 2>{{b.at[1], b.at[3]}});
  Sorted<V, 6> even =
      merged(Sorted<V, 3>{{a.at[0], a.at[2], a.at[4]}}, Sorted<V, 3>{{b.at[0], b.at[2], b.at[4]}});
  result.at[0] = even.at[0];
  for (int i = 0; i < 4; ++i) {
    result.at[2 * i + 1] = min(odd.at[i], even.at[i + 1]);
    result.at[2 * i + 2] = max(even.at[i + 1], odd.at[i]);
  }
  result.at[9] = even.at[5];
}

// What a merge of three and three has at places 2 and 3 of 0 to 5.
template <typename V>
[[gnu::always_inline]] inline Sorted<V, 2> middleOf(const Sorted<V, 3>& a, const Sorted<V, 3>& b) {
  const Sorted<V, 2> even = middleOf(Sorted<V, 2>{{a.at[0], a.at[2]}}, Sorted<V, 2>{{b.at[0], b.at[2]}}),
                     odd = sorted(a.at[1], b.at[1]);
  return {{max(odd.at[0], even.at[0]), min(odd.at[1], even.at[1])}};
}

// What a merge of ten and ten has at places 7 to 12 of 0 to 19. It needs places 4 to 6 of those of the even
// ones, 3 to 5 of the odd ones.
template <typename V>
[[gnu::always_inline]] inline Sorted<V, 6> middleOf(const Sorted<V, 10>& a, const Sorted<V, 10>& b) {
  const auto ofTwo = [&](int i, int j) __attribute__((always_inline)) {
    return middleOf(Sorted<V, 2>{{a.at[i], a.at[j]}}, Sorted<V, 2>{{b.at[i], b.at[j]}});
  };
  const auto ofThree = [&](int i, int j, int k) __attribute__((always_inline)) {
    return middleOf(Sorted<V, 3>{{a.at[i], a.at[j], a.at[k]}}, Sorted<V, 3>{{b.at[i], b.at[j], b.at[k]}});
  };
  const Sorted<V, 2> evenOfEven = ofThree(0, 4, 8), oddOfEven = ofTwo(2, 6);
  const V even4 = max(oddOfEven.at[0], evenOfEven.at[0]);
  const Sorted<V, 2> even56 = sorted(oddOfEven.at[1], evenOfEven.at[1]);
  const Sorted<V, 2> evenOfOdd = ofThree(1, 5, 9), oddOfOdd = ofTwo(3, 7);
  const Sorted<V, 2> odd34 = sorted(oddOfOdd.at[0], evenOfOdd.at[0]);
  const V odd5 = min(oddOfOdd.at[1], evenOfOdd.at[1]);
  const Sorted<V, 2> first = sorted(odd34.at[0], even4), second = sorted(odd34.at[1], even56.at[0]),
                     third = sorted(odd5, even56.at[1]);
  return {{first.at[0], first.at[1], second.at[0], second.at[1], third.at[0], third.at[1]}};
}

// The median of these and of five more: the sixth of eleven. Whichever i of them and 6 - i of the others are
// the smallest ones, it is the largest of those; any other choice of as many has a larger one.
template <typename V>
[[gnu::always_inline]] inline V medianOf(const Sorted<V, 6>& a, const Sorted<V, 5>& b) {
  V result = a.at[5];
  for (int i = 0; i < 5; ++i) result = min(result, max(a.at[i], b.at[4 - i]));
  return result;
}

// The k-th smallest and the k-th largest of eight, which are six and two in order.
template <int k, typename V>
[[gnu::always_inline]] inline Sorted<V, 2> placesOf(const Sorted<V, 6>& six, const Sorted<V, 2>& two) {
  static_assert(k >= 1 && k <= 3);
  V low = six.at[k - 1], high = six.at[6 - k];
  if constexpr (k > 1) {
    low = min(low, max(six.at[k - 2], two.at[0]));
    high = max(high, min(six.at[7 - k], two.at[1]));
  }
  if constexpr (k == 3) {
    low = min(low, max(six.at[0], two.at[1]));
    high = max(high, min(six.at[5], two.at[0]));
  } else {
    low = min(low, two.at[k - 1]);
    high = max(high, two.at[2 - k]);
  }
  return {{low, high}};
}

}  // namespace lumi
