// SPDX-License-Identifier: MIT
// photo_demo [picture.png|picture.jpg|-] [folder]
// Works on a photo by calls of lumi, tells what each of them takes, and writes the results as PNG files: a
// folder and a sheet for each home, and an index with some pictures of every home. Without a picture, or with
// "-", it draws a scene of its own.
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
#include <utility>
#include <vector>

#include "panels.hpp"
#include "picture_file.hpp"
#include "scene.hpp"
#include "shapes.hpp"
#include "sheet.hpp"

namespace {

namespace fs = std::filesystem;

double perPixel(const Call& call) { return call.nanoseconds / call.pixels; }

std::string timing(const Calls& calls) {
  if (calls.list().empty()) return "nothing to do";
  const Call& call = calls.list().back();
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

std::vector<Card> makePanels(const Families& families, const Colour& photo, const fs::path& folder) {
  std::vector<Card> cards;
  for (const auto& [family, panels] : families) {
    int place = 0;
    for (const Panel& panel : panels) {
      Calls calls;
      const AnyImage image = panel.make(photo, calls);
      tell(panel.title, calls);
      writePicture((folder / (family + '-' + panel.file + ".png")).string(), image);
      cards.push_back({panel.title, timing(calls), thumbnail(image), place++});
    }
  }
  return cards;
}

// A row of cards for the index: the first of each family, an even choice where there are too many of these,
// and further ones where there are too few.
std::vector<Card> chosen(std::vector<Card> cards) {
  std::stable_sort(cards.begin(), cards.end(),
                   [](const Card& a, const Card& b) { return a.place < b.place; });
  const auto firsts =
      std::count_if(cards.begin(), cards.end(), [](const Card& card) { return card.place == 0; });
  const size_t count = std::min(cards.size(), size_t{kColumns});
  const size_t pool = std::max(static_cast<size_t>(firsts), count);
  std::vector<Card> row;
  for (size_t i = 0; i < count; ++i) row.push_back(std::move(cards[(2 * i + 1) * pool / (2 * count)]));
  return row;
}

void run(const std::string& path, const fs::path& folder) {
  const bool own = path.empty() || path == "-";
  const std::string name = own ? "test scene" : fs::path(path).filename().string();
  const Colour photo = own ? testScene() : readPicture(path);
  createFolder(folder);

  const LumLibraryVersion& version = *lumiGetLibVersion();
  const std::string heading = std::string("lumi ") + version.versionText;
  const std::string about = name + ", " + std::to_string(photo.size().width) + " x " +
                            std::to_string(photo.size().height) + " pixels, " +
                            std::to_string(8 * sizeof(void*)) + "-bit build";
  std::printf("%s %s\n%s\n", version.name, version.versionText, about.c_str());
  std::vector<Section> index;
  for (const auto& [home, families] : homes()) {
    createFolder(folder / home);
    std::printf("%s\n", home.c_str());
    std::vector<Section> sheet(1);
    sheet[0].cards = makePanels(families, photo, folder / home);
    writePicture((folder / (home + ".png")).string(), makeSheet(heading + ": " + home, about, sheet));
    index.push_back({home, chosen(std::move(sheet[0].cards))});
  }
  const std::string file = (folder / "index.png").string();
  writePicture(file, makeSheet(heading, about, index));
  std::printf("Some pictures of each home: %s; beside it a sheet and a folder with all pictures of each\n",
              file.c_str());
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
