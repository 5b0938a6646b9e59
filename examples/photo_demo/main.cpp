// SPDX-License-Identifier: MIT
// photo_demo [picture.png|picture.jpg|-] [folder]
// Works on a photo by calls of lumi, tells what each of them takes, and writes the results as PNG files with
// a sheet that shows them all. Without a picture, or with "-", it draws a scene of its own.
#include <algorithm>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <iomanip>
#include <new>
#include <sstream>
#include <stdexcept>
#include <string>
#include <system_error>
#include <vector>

#include "panels.hpp"
#include "picture_file.hpp"
#include "scene.hpp"
#include "shapes.hpp"
#include "sheet.hpp"

namespace {

namespace fs = std::filesystem;

double perPixel(const Call& call) { return call.nanoseconds / call.pixels; }

std::string timing(const Call& call) {
  std::ostringstream text;
  text << call.name << ' ' << std::fixed << std::setprecision(2) << perPixel(call) << " ns/px";
  return text.str();
}

void tell(const char* title, const Calls& calls) {
  for (const Call& call : calls.list()) {
    std::printf("  %-26s %-30s %9.4f ms %8.3f ns/pixel\n", title, call.name, call.nanoseconds / 1e6,
                perPixel(call));
    title = "";
  }
}

std::string fileName(size_t number, const char* name) {
  return (number < 10 ? "0" : "") + std::to_string(number) + '-' + name + ".png";
}

// Whole numbers of pixels are left out to make a picture fit on a card.
Colour thumbnail(const AnyImage& image) {
  constexpr int width = 420, height = 420;
  const Colour colour = shown(image);
  const LumiSize size = colour.size();
  const int n = std::max({1, (size.width + width - 1) / width, (size.height + height - 1) / height});
  return everyNth(colour, n);
}

void createFolder(const fs::path& folder) {
  std::error_code error, ignored;
  fs::create_directories(folder, error);
  if (!fs::is_directory(folder, ignored)) {
    const std::string why = error ? error.message() : "a file of this name exists";
    throw std::runtime_error("cannot create folder '" + folder.string() + "': " + why);
  }
}

void run(const std::string& path, const fs::path& folder) {
  const bool own = path.empty() || path == "-";
  const std::string name = own ? "test scene" : fs::path(path).filename().string();
  const Colour photo = own ? testScene() : readPicture(path);
  createFolder(folder);

  const LumLibraryVersion& version = *lumiGetLibVersion();
  const std::string about = name + ", " + std::to_string(photo.size().width) + " x " +
                            std::to_string(photo.size().height) + " pixels, " +
                            std::to_string(8 * sizeof(void*)) + "-bit build";
  std::printf("%s %s\n%s\n", version.name, version.versionText, about.c_str());
  std::vector<Card> cards;
  for (const Panel& panel : panels()) {
    Calls calls;
    const AnyImage image = panel.make(photo, calls);
    tell(panel.title, calls);
    writePicture((folder / fileName(cards.size() + 1, panel.file)).string(), image);
    cards.push_back({panel.title, timing(calls.list().back()), thumbnail(image)});
  }
  const std::string sheet = (folder / "sheet.png").string();
  writePicture(sheet, makeSheet(std::string("lumi ") + version.versionText, about, cards));
  std::printf("All pictures side by side: %s\n", sheet.c_str());
}

}  // namespace

int main(int count, char** arguments) {
  try {
    if (count > 3) throw std::runtime_error("usage: photo_demo [picture.png|picture.jpg|-] [folder]");
    run(count > 1 ? arguments[1] : "", count > 2 ? arguments[2] : "build/demo");
    return 0;
  } catch (const std::bad_alloc&) {
    std::fputs("photo_demo: not enough memory for this picture\n", stderr);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "photo_demo: %s\n", error.what());
  }
  return 1;
}
