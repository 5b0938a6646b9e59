// SPDX-License-Identifier: MIT
#include <array>
#include <vector>

#include "panels.hpp"
#include "pieces.hpp"

namespace {

using Floats = Image<1, Lum32f>;

Floats greenOf(const Colour& photo) {
  const Planes planes = split(photo);
  Floats result(photo.size());
  check(lumiConvert_8u32f_C1R(planes.green.data(), planes.green.step(), result.data(), result.step(),
                              photo.size()),
        "lumiConvert_8u32f_C1R");
  return result;
}

Floats product(const Floats& a, const Floats& b) {
  Floats result(a.size());
  check(lumiMul_32f_C1R(a.data(), a.step(), b.data(), b.step(), result.data(), result.step(), a.size()),
        "lumiMul_32f_C1R");
  return result;
}

// Means over 7 x 7 pixels, edges repeated.
class LocalMean {
 public:
  explicit LocalMean(LumiSize largest) {
    int objectBytes = 0, bufferBytes = 0;
    const LumiSize window = {7, 7};
    const std::vector<Lum32f> taps(49, 1.0f / 49);
    check(lumiFilterBorderGetSize(window, largest, lumiData32f, lumiData32f, 1, &objectBytes, &bufferBytes),
          "lumiFilterBorderGetSize");
    memory_.resize(static_cast<size_t>(objectBytes));
    buffer_.resize(static_cast<size_t>(bufferBytes));
    check(lumiFilterBorderInit_32f(taps.data(), window, lumiData32f, 1, lumRoundNearestEven, object()),
          "lumiFilterBorderInit_32f");
  }

  Floats operator()(const Floats& image) {
    Floats mean(image.size());
    constexpr Lum32f unused = 0;
    check(lumiFilterBorder_32f_C1R(image.data(), image.step(), mean.data(), mean.step(), image.size(),
                                   lumiBorderReplicate, &unused, object(), buffer_.data()),
          "lumiFilterBorder_32f_C1R");
    return mean;
  }

 private:
  LumiFilterBorderSpec* object() { return reinterpret_cast<LumiFilterBorderSpec*>(memory_.data()); }

  std::vector<Lum8u> memory_, buffer_;
};

// Where the photo is like its copy, the map is white: 255 times the similarity of the green planes.
AnyImage similarity(const Floats& a, const Floats& b, Calls& calls) {
  const LumiSize size = a.size();
  LocalMean meanOf(size);
  const Floats m1 = meanOf(a), m2 = meanOf(b), s1 = meanOf(product(a, a)), s2 = meanOf(product(b, b)),
               p = meanOf(product(a, b));
  Floats map(size);
  constexpr float c1 = 6.5025f, c2 = 58.5225f;  // (0.01 * 255)^2 and (0.03 * 255)^2
  calls.time("lumiSSIM_32f_C1R", size, [&] {
    return lumiSSIM_32f_C1R(m1.data(), m1.step(), m2.data(), m2.step(), s1.data(), s1.step(), s2.data(),
                            s2.step(), p.data(), p.step(), map.data(), map.step(), size, c1, c2, 1);
  });
  check(lumiMulC_32f_C1IR(255, map.data(), map.step(), size), "lumiMulC_32f_C1IR");
  Grey grey(size);
  check(lumiConvert_32f8u_C1R(map.data(), map.step(), grey.data(), grey.step(), size, lumRoundNearestEven),
        "lumiConvert_32f8u_C1R");
  return grey;
}

AnyImage toBlurred(const Colour& photo, Calls& calls) {
  const Floats green = greenOf(photo);
  return similarity(green, LocalMean(photo.size())(green), calls);
}

AnyImage toItself(const Colour& photo, Calls& calls) {
  const Floats green = greenOf(photo);
  return similarity(green, green, calls);
}

const Panels panels("statistics", "ssim",
                    {
                        {"blurred", "Similarity to a blurred copy", toBlurred},
                        {"itself", "Similarity to itself", toItself},
                    });

}  // namespace
