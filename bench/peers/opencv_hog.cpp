// SPDX-License-Identifier: MIT
#include "bench/peers/opencv_hog.hpp"

#include <opencv2/core.hpp>
#include <opencv2/objdetect.hpp>

namespace bench::opencv {

Peer hog(View src, LumiSize window, int stride) {
  const int type = CV_MAKETYPE(CV_8U, src.channels);
  const cv::Mat s(src.roi.height, src.roi.width, type, src.bytes, static_cast<std::size_t>(src.step));
  const cv::Size size(window.width, window.height), step(stride, stride);
  const cv::HOGDescriptor descriptor(size, {16, 16}, step, {8, 8}, 9, 1, 4, cv::HOGDescriptor::L2Hys, 0.2,
                                     false);
  Peer result = peer("opencv", [=, found = std::vector<float>()]() mutable {
    descriptor.compute(s, found, size, {0, 0}, {{0, 0}});
  });
  result.differs = "kept elsewhere, with angles and weights of its own";
  return result;
}

}  // namespace bench::opencv
