// SPDX-License-Identifier: MIT
#include "picture_file.hpp"

#include <stb/stb_image.h>
#include <stb/stb_image_write.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <stdexcept>
#include <system_error>

#include "calls.hpp"

namespace {

using File = std::unique_ptr<FILE, int (*)(FILE*)>;

[[noreturn]] void fail(const char* what, const std::string& path, const char* why) {
  throw std::runtime_error(std::string(what) + " '" + path + "': " + why);
}

}  // namespace

Colour readPicture(const std::string& path) {
  std::error_code ignored;  // what cannot be asked about cannot be opened either
  if (std::filesystem::is_directory(path, ignored)) fail("cannot read", path, "it is a folder");
  const File file(std::fopen(path.c_str(), "rb"), std::fclose);
  if (!file) fail("cannot open", path, std::strerror(errno));

  // Pixels. A dozen images of the largest picture fit into 32-bit memory, and thumbnail steps into an int.
  constexpr int largestArea = 40'000'000, largestSide = 32'000;
  LumiSize size{};
  int channels = 0;
  if (!stbi_info_from_file(file.get(), &size.width, &size.height, &channels)) {
    fail("cannot read", path, "it is not a PNG or JPEG picture");
  }
  if (std::max(size.width, size.height) > largestSide || size.width * size.height > largestArea) {
    fail("cannot read", path, "the picture is too large");
  }

  const std::unique_ptr<stbi_uc, void (*)(void*)> pixels(
      stbi_load_from_file(file.get(), &size.width, &size.height, &channels, 3), stbi_image_free);
  if (!pixels) fail("cannot read", path, "the file is damaged or of an unsupported kind");
  Colour picture(size);
  check(lumiCopy_8u_C3R(pixels.get(), 3 * size.width, picture.data(), picture.step(), size),
        "lumiCopy_8u_C3R");
  return picture;
}

void writePicture(const std::string& path, const AnyImage& picture) {
  const auto encode = [](const auto& image) {
    const LumiSize size = image.size();
    std::string bytes;
    const auto append = [](void* context, void* data, int count) {
      static_cast<std::string*>(context)->append(static_cast<char*>(data), static_cast<size_t>(count));
    };
    if (!stbi_write_png_to_func(append, &bytes, size.width, size.height, image.kChannels, image.data(),
                                image.step())) {
      throw std::bad_alloc();
    }
    return bytes;
  };
  const std::string bytes = std::visit(encode, picture);

  File file(std::fopen(path.c_str(), "wb"), std::fclose);
  if (!file) fail("cannot create", path, std::strerror(errno));
  const bool written = std::fwrite(bytes.data(), 1, bytes.size(), file.get()) == bytes.size();
  if (std::fclose(file.release()) != 0 || !written) fail("cannot write", path, std::strerror(errno));
}
