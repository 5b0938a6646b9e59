// SPDX-License-Identifier: MIT
#include "bench/peers/opencv.hpp"

#include <cstring>
#include <opencv2/core.hpp>
#include <opencv2/core/utility.hpp>
#include <opencv2/imgproc.hpp>

namespace bench::opencv {
namespace {

cv::Mat mat(const View& view) {
  constexpr int kDepths[] = {CV_8U, CV_16U, CV_16S, CV_32S, CV_32F};
  return cv::Mat(view.roi.height, view.roi.width,
                 CV_MAKETYPE(kDepths[static_cast<int>(view.depth)], view.channels), view.bytes,
                 static_cast<std::size_t>(view.step));
}

std::vector<cv::Mat> mats(const std::vector<View>& views) {
  std::vector<cv::Mat> all;
  for (const View& view : views) all.push_back(mat(view));
  return all;
}

cv::Scalar scalar(const Value& value) { return {value[0], value[1], value[2], value[3]}; }

}  // namespace

void prepare() { cv::setNumThreads(1); }

Library library() {
  bool above = false;
  for (const int feature : {CV_CPU_AVX2, CV_CPU_FMA3, CV_CPU_AVX512_SKX}) {
    above = above || cv::checkHardwareSupport(feature);
  }
  return {"opencv", cv::getVersionString(), above};
}

Peer fill(View dst, Value value) {
  return peer("opencv", [d = mat(dst), v = scalar(value)]() mutable { d.setTo(v); });
}

Peer fillMasked(View dst, Value value, View mask) {
  return peer("opencv", [d = mat(dst), v = scalar(value), m = mat(mask)]() mutable { d.setTo(v, m); });
}

Peer copy(View src, View dst) {
  return peer("opencv", [s = mat(src), d = mat(dst)] { s.copyTo(d); });
}

Peer copyMasked(View src, View dst, View mask) {
  return peer("opencv", [s = mat(src), d = mat(dst), m = mat(mask)] { s.copyTo(d, m); });
}

Peer split(View src, std::vector<View> dst) {
  return peer("opencv", [s = mat(src), d = mats(dst)]() mutable { cv::split(s, d.data()); });
}

Peer merge(std::vector<View> src, View dst) {
  return peer("opencv", [s = mats(src), d = mat(dst)] { cv::merge(s.data(), s.size(), d); });
}

Peer move(View src, View dst, int from, int to, int count) {
  const cv::Mat s = mat(src);
  cv::Mat d = mat(dst);
  if (dst.channels == 1) return peer("opencv", [=] { cv::extractChannel(s, d, from); });
  if (src.channels == 1) return peer("opencv", [=]() mutable { cv::insertChannel(s, d, to); });
  std::vector<int> pairs;
  for (int i = 0; i < count; ++i) pairs.insert(pairs.end(), {from + i, to + i});
  return peer("opencv", [=]() mutable {
    cv::mixChannels(&s, 1, &d, 1, pairs.data(), static_cast<std::size_t>(count));
  });
}

Peer dropAlpha(View src, View dst) {
  if (src.depth == Depth::s16 || src.depth == Depth::s32) return {};
  return peer("opencv", [s = mat(src), d = mat(dst)] { cv::cvtColor(s, d, cv::COLOR_BGRA2BGR); });
}

Peer spread(View src, View dst) {
  // The conversion to four channels would store an opaque alpha.
  if (dst.channels == 4) return merge({src, src, src, src}, dst);
  return peer("opencv", [s = mat(src), d = mat(dst)] { cv::cvtColor(s, d, cv::COLOR_GRAY2BGR); });
}

Peer add(View a, View b, View dst) {
  return peer("opencv", [x = mat(a), y = mat(b), d = mat(dst)] { cv::add(x, y, d); });
}

Peer subtract(View a, View b, View dst) {
  return peer("opencv", [x = mat(a), y = mat(b), d = mat(dst)] { cv::subtract(y, x, d); });
}

Peer addConstant(View src, View dst, Value value) {
  return peer("opencv", [s = mat(src), d = mat(dst), v = scalar(value)] { cv::add(s, v, d); });
}

Peer multiply(View a, View b, View dst) {
  return peer("opencv", [x = mat(a), y = mat(b), d = mat(dst)] { cv::multiply(x, y, d); });
}

Peer multiplyByConstant(View src, View dst, Value value) {
  return peer("opencv", [s = mat(src), d = mat(dst), v = scalar(value)] { cv::multiply(s, v, d); });
}

Peer divide(View divisor, View dividend, View dst) {
  return peer("opencv", [x = mat(divisor), y = mat(dividend), d = mat(dst)] { cv::divide(y, x, d); });
}

Peer divideByConstant(View src, View dst, Value value) {
  return peer("opencv", [s = mat(src), d = mat(dst), v = scalar(value)] { cv::divide(s, v, d); });
}

namespace {

// Images, or an image and a constant.
template <typename Second>
Peer logicOf(View first, Second second, View dst, Logic operation) {
  return peer("opencv", [=, x = mat(first), d = mat(dst)] {
    switch (operation) {
      case Logic::conjunction:
        return cv::bitwise_and(x, second, d);
      case Logic::disjunction:
        return cv::bitwise_or(x, second, d);
      case Logic::exclusive:
        return cv::bitwise_xor(x, second, d);
    }
  });
}

}  // namespace

Peer logic(View a, View b, View dst, Logic operation) { return logicOf(a, mat(b), dst, operation); }

Peer logicConstant(View src, View dst, Value value, Logic operation) {
  return logicOf(src, scalar(value), dst, operation);
}

Peer invert(View src, View dst) {
  return peer("opencv", [s = mat(src), d = mat(dst)] { cv::bitwise_not(s, d); });
}

Peer convert(View src, View dst) { return scale(src, dst, 1, 0); }

Peer scale(View src, View dst, double alpha, double beta) {
  cv::Mat d = mat(dst);
  return peer("opencv", [s = mat(src), d, alpha, beta] { s.convertTo(d, d.depth(), alpha, beta); });
}

Peer absolute(View src, View dst) {
  return peer("opencv", [s = mat(src), d = mat(dst)] { cv::absdiff(s, cv::Scalar::all(0), d); });
}

Peer square(View src, View dst) {
  return peer("opencv", [s = mat(src), d = mat(dst)] { cv::multiply(s, s, d); });
}

Peer root(View src, View dst) {
  return peer("opencv", [s = mat(src), d = mat(dst)] { cv::sqrt(s, d); });
}

Peer logarithm(View src, View dst) {
  return peer("opencv", [s = mat(src), d = mat(dst)] { cv::log(s, d); });
}

Peer exponential(View src, View dst) {
  return peer("opencv", [s = mat(src), d = mat(dst)] { cv::exp(s, d); });
}

namespace {

std::vector<cv::Mat> partsOf(View complex) {
  std::vector<cv::Mat> parts;
  cv::split(mat(complex), parts);
  return parts;
}

}  // namespace

Peer magnitude(View src, View dst) {
  Peer result = peer("opencv", [s = partsOf(src), d = mat(dst)] { cv::magnitude(s[0], s[1], d); });
  result.differs = "rounds other steps";
  return result;
}

Peer phase(View src, View dst) {
  Peer result = peer("opencv", [s = partsOf(src), d = mat(dst)] { cv::phase(s[0], s[1], d); });
  result.differs = "is right to 0.3 degrees";
  return result;
}

Peer polarToCart(View magnitude, View phase) {
  Peer result = peer("opencv", [m = mat(magnitude), p = mat(phase), x = cv::Mat(), y = cv::Mat()]() mutable {
    cv::polarToCart(m, p, x, y);
  });
  result.differs = "stores parts apart, to fewer places";
  return result;
}

Peer window(View src, View dst) {
  Peer result = peer("opencv", [s = mat(src), d = mat(dst), w = cv::Mat()]() mutable {
    cv::createHanningWindow(w, s.size(), CV_32F);
    cv::multiply(s, w, d, 1, d.depth());
  });
  result.differs = "makes another window";
  return result;
}

Peer lookUp(View src, View dst, std::vector<Lum8u> tables) {
  const int channels = static_cast<int>(tables.size() / 256);
  cv::Mat table(1, 256, CV_MAKETYPE(CV_8U, channels));
  for (int i = 0; i < 256; ++i)
    for (int c = 0; c < channels; ++c)
      table.data[i * channels + c] = tables[static_cast<std::size_t>(c * 256 + i)];
  return peer("opencv", [s = mat(src), d = mat(dst), table] { cv::LUT(s, table, d); });
}

Peer above(View src, double threshold) {
  const cv::Mat bytes(src.roi.height, src.roi.width, CV_8UC1);
  return peer("opencv", [s = mat(src), bytes, threshold] { cv::compare(s, threshold, bytes, cv::CMP_GT); });
}

Peer limitAbove(View src, View dst, Value thresholds) {
  if (src.channels > 1)
    return peer("opencv", [s = mat(src), d = mat(dst), t = scalar(thresholds)] { cv::min(s, t, d); });
  return peer("opencv", [s = mat(src), d = mat(dst), t = thresholds[0]] {
    cv::threshold(s, d, t, 0, cv::THRESH_TRUNC);
  });
}

Peer zeroAbove(View src, View dst, double threshold) {
  return peer("opencv",
              [=, s = mat(src), d = mat(dst)] { cv::threshold(s, d, threshold, 0, cv::THRESH_TOZERO_INV); });
}

Peer extreme(View src, View dst, bool larger) {
  return peer("opencv",
              [=, s = mat(src), d = mat(dst)]() mutable { larger ? cv::max(s, d, d) : cv::min(s, d, d); });
}

namespace {

constexpr int kCompareOps[] = {cv::CMP_LT, cv::CMP_LE, cv::CMP_EQ, cv::CMP_GE, cv::CMP_GT};

}  // namespace

Peer compare(View a, View b, View dst, int cmpOp) {
  return peer("opencv",
              [x = mat(a), y = mat(b), d = mat(dst), op = kCompareOps[cmpOp]] { cv::compare(x, y, d, op); });
}

Peer compareConstant(View src, View dst, double value, int cmpOp) {
  return peer("opencv",
              [s = mat(src), d = mat(dst), value, op = kCompareOps[cmpOp]] { cv::compare(s, value, d, op); });
}

Peer bestThreshold(View src) {
  const cv::Mat above(src.roi.height, src.roi.width, CV_8UC1);
  return peer("opencv", [s = mat(src), above] {
    cv::threshold(s, above, 0, 255, cv::THRESH_BINARY | cv::THRESH_OTSU);
  });
}

Peer histogram(View src, int bins, double lower, double upper) {
  const cv::Mat counts(bins, 1, CV_32FC1);
  const auto low = static_cast<float>(lower), high = static_cast<float>(upper);
  return peer("opencv", [s = mat(src), counts, bins, low, high]() mutable {
    const float range[] = {low, high};
    const float* ranges[] = {range};
    const int channel = 0;
    cv::calcHist(&s, 1, &channel, cv::Mat(), counts, 1, &bins, ranges);
  });
}

Peer moments(View src, View total) {
  return peer("opencv", [s = mat(src), t = mat(total)]() mutable {
    t.at<float>(0) = static_cast<float>(cv::moments(s).m00);
  });
}

namespace {

void storeDoubles(const View& results, const cv::Scalar& values) {
  std::memcpy(results.bytes, values.val, static_cast<std::size_t>(results.rowBytes()));
}

// A sample of the view's type.
void storeSample(const View& result, double value) {
  const auto store = [&](auto sample) { std::memcpy(result.bytes, &sample, sizeof sample); };
  switch (result.depth) {
    case Depth::u8:
      return store(static_cast<Lum8u>(value));
    case Depth::u16:
      return store(static_cast<Lum16u>(value));
    case Depth::s16:
      return store(static_cast<Lum16s>(value));
    case Depth::s32:
      return store(static_cast<Lum32s>(value));
    case Depth::f32:
      return store(static_cast<Lum32f>(value));
  }
}

}  // namespace

Peer sum(View src, View sums) {
  return peer("opencv", [s = mat(src), sums] { storeDoubles(sums, cv::sum(s)); });
}

Peer mean(View src, View means) {
  return peer("opencv", [s = mat(src), means] { storeDoubles(means, cv::mean(s)); });
}

Peer leastAndGreatest(View src, View min, View max) {
  return peer("opencv", [s = mat(src), min, max] {
    double least, greatest;
    cv::minMaxLoc(s, &least, &greatest);
    storeSample(min, least);
    storeSample(max, greatest);
  });
}

Peer extremePlace(View src, View value, View x, View y, bool greatest) {
  return peer("opencv", [=, s = mat(src)] {
    double extreme;
    cv::Point place;
    if (greatest)
      cv::minMaxLoc(s, nullptr, &extreme, nullptr, &place);
    else
      cv::minMaxLoc(s, &extreme, nullptr, &place, nullptr);
    storeSample(value, extreme);
    storeSample(x, place.x);
    storeSample(y, place.y);
  });
}

Peer border(View src, View dst, int top, int left, Border kind, Value value) {
  constexpr int kKinds[] = {cv::BORDER_CONSTANT, cv::BORDER_REPLICATE, cv::BORDER_WRAP};
  const int bottom = dst.roi.height - src.roi.height - top, right = dst.roi.width - src.roi.width - left;
  return peer("opencv", [=, s = mat(src), d = mat(dst), v = scalar(value)]() mutable {
    cv::copyMakeBorder(s, d, top, bottom, left, right, kKinds[static_cast<int>(kind)], v);
  });
}

Peer transpose(View src, View dst) {
  return peer("opencv", [s = mat(src), d = mat(dst)] { cv::transpose(s, d); });
}

Peer flip(View src, View dst, Flip axis) {
  constexpr int kCodes[] = {0, 1, -1};
  const int code = kCodes[static_cast<int>(axis)];
  return peer("opencv", [s = mat(src), d = mat(dst), code] { cv::flip(s, d, code); });
}

Peer permute(View src, View dst, std::vector<int> order) {
  std::vector<int> pairs;
  for (std::size_t c = 0; c < order.size(); ++c) pairs.insert(pairs.end(), {order[c], static_cast<int>(c)});
  return peer("opencv", [s = mat(src), d = mat(dst), pairs]() mutable {
    cv::mixChannels(&s, 1, &d, 1, pairs.data(), pairs.size() / 2);
  });
}

Peer swapRedBlue(View src, View dst) {
  if (src.depth == Depth::s16 || src.depth == Depth::s32) return {};
  const int codes[2][2] = {{cv::COLOR_BGR2RGB, cv::COLOR_BGR2RGBA},
                           {cv::COLOR_BGRA2RGB, cv::COLOR_BGRA2RGBA}};
  const int code = codes[src.channels - 3][dst.channels - 3];
  return peer("opencv", [s = mat(src), d = mat(dst), code] { cv::cvtColor(s, d, code); });
}

Peer filter(View src, View dst, std::vector<float> taps, LumiSize size) {
  const cv::Mat kernel = cv::Mat(size.height, size.width, CV_32F, taps.data()).clone();
  cv::Mat d = mat(dst);
  return peer("opencv", [s = mat(src), d, kernel] {
    cv::filter2D(s, d, d.depth(), kernel, cv::Point(-1, -1), 0, cv::BORDER_REPLICATE);
  });
}

Peer gradient(View around, View dst, int reach, Gradient kind, int side) {
  const cv::Mat s = mat(around)(cv::Rect(reach, reach, dst.roi.width, dst.roi.height));
  return peer("opencv", [=, d = mat(dst)]() mutable {
    const bool across = kind == Gradient::sobelX || kind == Gradient::scharrX;
    if (kind == Gradient::laplace)
      cv::Laplacian(s, d, d.depth(), side);
    else if (kind == Gradient::scharrX || kind == Gradient::scharrY)
      cv::Scharr(s, d, d.depth(), across, !across);
    else
      cv::Sobel(s, d, d.depth(), across, !across, side);
  });
}

Peer gauss(View around, View dst, int reach, int side) {
  const cv::Mat s = mat(around)(cv::Rect(reach, reach, dst.roi.width, dst.roi.height));
  return peer("opencv", [=, d = mat(dst)]() mutable { cv::GaussianBlur(s, d, {side, side}, 0); });
}

Peer box(View around, View dst, int reach, int side) {
  const cv::Mat s = mat(around)(cv::Rect(reach, reach, dst.roi.width, dst.roi.height));
  return peer("opencv", [=, d = mat(dst)]() mutable { cv::blur(s, d, {side, side}); });
}

Peer filterLines(View whole, LumiPoint at, View dst, std::vector<float> taps, bool isColumn,
                 bool separately) {
  const cv::Mat src = mat(whole)(cv::Rect(at.x, at.y, dst.roi.width, dst.roi.height));
  const cv::Mat line = cv::Mat(taps).clone(), kernel = isColumn ? line : cv::Mat(line.t()),
                one = cv::Mat::ones(1, 1, CV_32F);
  cv::Mat d = mat(dst);
  if (!separately) return peer("opencv", [=] { cv::filter2D(src, d, d.depth(), kernel); });
  return peer("sepFilter2D",
              [=] { cv::sepFilter2D(src, d, d.depth(), isColumn ? one : line, isColumn ? line : one); });
}

Peer boxFilter(View src, View dst, LumiSize window) {
  const cv::Mat whole = mat(src);
  const cv::Size size(dst.roi.width, dst.roi.height);
  const cv::Mat inner =
      whole(cv::Rect({(whole.cols - size.width) / 2, (whole.rows - size.height) / 2}, size));
  return peer("opencv", [inner, d = mat(dst), window]() mutable {
    cv::boxFilter(inner, d, -1, {window.width, window.height}, {-1, -1}, true, cv::BORDER_REPLICATE);
  });
}

Peer morphology(View around, View dst, std::vector<Lum8u> mask, LumiSize size, bool dilates) {
  const cv::Mat s = mat(around)(cv::Rect(size.width / 2, size.height / 2, dst.roi.width, dst.roi.height)),
                kernel = cv::Mat(size.height, size.width, CV_8U, mask.data()).clone();
  return peer("opencv", [=, d = mat(dst)]() mutable {
    if (dilates)
      cv::dilate(s, d, kernel);
    else
      cv::erode(s, d, kernel);
  });
}

Peer adaptiveThreshold(View src, View dst, int side, double delta, bool weighted) {
  const int method = weighted ? cv::ADAPTIVE_THRESH_GAUSSIAN_C : cv::ADAPTIVE_THRESH_MEAN_C;
  Peer result = peer("opencv", [=, s = mat(src), d = mat(dst)]() mutable {
    cv::adaptiveThreshold(s, d, 200, method, cv::THRESH_BINARY, side, delta);
  });
  result.differs = "rounds the mean";
  return result;
}

Peer medianBlur(View src, View dst, int side) {
  const cv::Mat whole = mat(src);
  const cv::Size size(dst.roi.width, dst.roi.height);
  const cv::Point at{(whole.cols - size.width) / 2, (whole.rows - size.height) / 2};
  Peer result = peer("opencv", [inner = whole(cv::Rect(at, size)), d = mat(dst), side]() mutable {
    cv::medianBlur(inner, d, side);
  });
  if (at.x > 0) result.differs = "repeats the nearest pixels";
  return result;
}

Peer sobel(View src, View x, View y, int side) {
  Peer result = peer("opencv", [=, s = mat(src), dx = mat(x), dy = mat(y)]() mutable {
    cv::Sobel(s, dx, dx.depth(), 1, 0, side, 1, 0, cv::BORDER_REPLICATE);
    cv::Sobel(s, dy, dy.depth(), 0, 1, side, 1, 0, cv::BORDER_REPLICATE);
  });
  result.differs = "its x has the other sign";
  return result;
}

Peer sobelMagnitude(View src, View dst, int side, bool isRootOfSquares) {
  struct Work {
    cv::Mat x, y, squares;
  };
  Peer result = peer("opencv", [=, s = mat(src), d = mat(dst), w = Work()]() mutable {
    const int depth = isRootOfSquares ? CV_32F : d.depth();
    cv::Sobel(s, w.x, depth, 1, 0, side, 1, 0, cv::BORDER_REPLICATE);
    cv::Sobel(s, w.y, depth, 0, 1, side, 1, 0, cv::BORDER_REPLICATE);
    if (!isRootOfSquares) {
      w.x = cv::abs(w.x);
      w.y = cv::abs(w.y);
      cv::add(w.x, w.y, d);
    } else if (d.depth() == CV_32F) {
      cv::magnitude(w.x, w.y, d);
    } else {
      cv::magnitude(w.x, w.y, w.squares);
      w.squares.convertTo(d, d.depth());
    }
  });
  if (dst.depth == Depth::f32 || isRootOfSquares) result.differs = "sums of floats in another order";
  return result;
}

Peer bilateral(View src, View dst, int radius, double valueSigma, double positionSigma) {
  Peer result = peer("opencv", [=, s = mat(src), d = mat(dst)]() mutable {
    cv::bilateralFilter(s, d, 2 * radius + 1, valueSigma, positionSigma, cv::BORDER_REPLICATE);
  });
  result.differs = "sums of floats in another order";
  return result;
}

Peer resizeNearest(View src, View dst) {
  return peer("opencv", [s = mat(src), d = mat(dst)]() mutable {
    cv::resize(s, d, d.size(), 0, 0, cv::INTER_NEAREST);
  });
}

Peer resizeLinear(View src, View dst) {
  return peer("opencv",
              [s = mat(src), d = mat(dst)]() mutable { cv::resize(s, d, d.size(), 0, 0, cv::INTER_LINEAR); });
}

namespace {

constexpr int kNorms[] = {cv::NORM_INF, cv::NORM_L1, cv::NORM_L2};

template <typename Find>
Peer storing(View result, Find find) {
  return peer("opencv", [=] {
    const double value = find();
    std::memcpy(result.bytes, &value, sizeof value);
  });
}

}  // namespace

Peer fourier(View src, View dst, bool inverse) {
  const int flags = inverse ? cv::DFT_INVERSE | (dst.channels == 1 ? cv::DFT_REAL_OUTPUT : 0) : 0;
  Peer result = peer("opencv", [=, s = mat(src), d = mat(dst)]() mutable { cv::dft(s, d, flags); });
  result.differs = "rounds otherwise";
  return result;
}

Peer cosine(View src, View dst, bool inverse) {
  if (src.roi.width % 2 != 0 || src.roi.height % 2 != 0) return {};
  Peer result = peer(
      "opencv", [=, s = mat(src), d = mat(dst)]() mutable { cv::dct(s, d, inverse ? cv::DCT_INVERSE : 0); });
  result.differs = "rounds otherwise";
  return result;
}

Peer cosine8x8(View src, View dst, bool inverse) {
  if (src.depth != Depth::f32 || !src.isTight() || !dst.isTight()) return {};
  return peer("opencv", [=] {
    const int blocks = src.roi.width * src.roi.height / 64;
    for (int i = 0; i < blocks; ++i) {
      const cv::Mat s(8, 8, CV_32F, src.bytes + 256 * i);
      cv::Mat d(8, 8, CV_32F, dst.bytes + 256 * i);
      cv::dct(s, d, inverse ? cv::DCT_INVERSE : 0);
    }
  });
}

Peer waveletBands(View src, std::vector<View> dst, std::vector<float> low, std::vector<float> high) {
  const int length = static_cast<int>(low.size()), reach = length - length / 2 - 1;
  Peer result = peer("opencv", [=, s = mat(src), d = mats(dst), filtered = cv::Mat()]() mutable {
    for (std::size_t i = 0; i < 4; ++i) {
      cv::sepFilter2D(s, filtered, CV_32F, i < 2 ? low : high, i % 2 == 0 ? low : high, {reach, reach}, 0,
                      cv::BORDER_REPLICATE);
      cv::resize(filtered, d[i], d[i].size(), 0, 0, cv::INTER_NEAREST);
    }
  });
  result.differs = "repeats its border, and adds up in another order";
  return result;
}

Peer norm(View src, View result, Norm kind) {
  return storing(result, [s = mat(src), type = kNorms[static_cast<int>(kind)]] { return cv::norm(s, type); });
}

Peer normOfDifference(View a, View b, View result, Norm kind) {
  return storing(result, [x = mat(a), y = mat(b), type = kNorms[static_cast<int>(kind)]] {
    return cv::norm(x, y, type);
  });
}

Peer relativeNorm(View a, View b, View result, Norm kind) {
  return storing(result, [x = mat(a), y = mat(b), type = kNorms[static_cast<int>(kind)]] {
    return cv::norm(x, y, type | cv::NORM_RELATIVE);
  });
}

Peer dotProduct(View a, View b, View result) {
  return storing(result, [x = mat(a), y = mat(b)] { return x.dot(y); });
}

Peer multiplySpectra(View a, View b, View dst, bool conjugate) {
  Peer product = peer("opencv", [=, x = mat(a), y = mat(b), d = mat(dst)]() mutable {
    cv::mulSpectrums(x, y, d, 0, conjugate);
  });
  product.differs = "some of its products are doubles";
  return product;
}

Peer meanAndDeviation(View src) {
  return peer("opencv", [s = mat(src)] {
    cv::Scalar mean, deviation;
    cv::meanStdDev(s, mean, deviation);
  });
}

}  // namespace bench::opencv
