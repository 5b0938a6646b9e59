// SPDX-License-Identifier: MIT
#include "text.hpp"

#include <iterator>
#include <string_view>

#include "calls.hpp"

namespace {

constexpr int kDotsAcross = 6, kDotsDown = 9;

// One line of letters and the nine lines of their dots, six columns for each letter.
struct Line {
  const char* letters;
  const char* dots[kDotsDown];
};

// clang-format off
constexpr Line kFont[] = {
    {"ABCDEFGHIJKLM", {
     " ###  ####   ###  ####  ##### #####  ###  #   #  ###    ### #   # #     #   # ",
     "#   # #   # #   # #   # #     #     #   # #   #   #      #  #  #  #     ## ## ",
     "#   # #   # #     #   # #     #     #     #   #   #      #  # #   #     # # # ",
     "##### ####  #     #   # ####  ####  # ### #####   #      #  ##    #     # # # ",
     "#   # #   # #     #   # #     #     #   # #   #   #      #  # #   #     #   # ",
     "#   # #   # #   # #   # #     #     #   # #   #   #   #  #  #  #  #     #   # ",
     "#   # ####   ###  ####  ##### #      ###  #   #  ###   ##   #   # ##### #   # ",
     "                                                                              ",
     "                                                                              "}},
    {"NOPQRSTUVWXYZ", {
     "#   #  ###  ####   ###  ####   #### ##### #   # #   # #   # #   # #   # ##### ",
     "##  # #   # #   # #   # #   # #       #   #   # #   # #   # #   # #   #     # ",
     "##  # #   # #   # #   # #   # #       #   #   # #   # #   #  # #   # #     #  ",
     "# # # #   # ####  #   # ####   ###    #   #   # #   # # # #   #     #     #   ",
     "#  ## #   # #     # # # # #       #   #   #   # #   # # # #  # #    #    #    ",
     "#  ## #   # #     #  #  #  #      #   #   #   #  # #  ## ## #   #   #   #     ",
     "#   #  ###  #      ## # #   # ####    #    ###    #   #   # #   #   #   ##### ",
     "                                                                              ",
     "                                                                              "}},
    {"abcdefghijklm", {
     "      #               #         ##        #       #      #  #      ##         ",
     "      #               #        #          #                 #       #         ",
     " ###  # ##   ###   ## #  ###  ####   #### # ##   ##     ##  #  #    #   ## #  ",
     "    # ##  # #     #  ## #   #  #    #   # ##  #   #      #  # #     #   # # # ",
     " #### #   # #     #   # #####  #    #   # #   #   #      #  ##      #   # # # ",
     "#   # #   # #     #   # #      #    #   # #   #   #      #  # #     #   # # # ",
     " #### ####   ###   ####  ###   #     #### #   #  ###     #  #  #   ###  # # # ",
     "                                        #             #  #                    ",
     "                                     ###               ##                     "}},
    {"nopqrstuvwxyz", {
     "                                     #                                        ",
     "                                     #                                        ",
     "# ##   ###  ####   #### # ##   #### ####  #   # #   # #   # #   # #   # ##### ",
     "##  # #   # #   # #   # ##  # #      #    #   # #   # #   #  # #  #   #    #  ",
     "#   # #   # #   # #   # #      ###   #    #   # #   # # # #   #   #   #   #   ",
     "#   # #   # #   # #   # #         #  #    #  ##  # #  # # #  # #  #   #  #    ",
     "#   #  ###  ####   #### #     ####    ##   ## #   #    # #  #   #  #### ##### ",
     "            #         #                                               #       ",
     "            #         #                                            ###        "}},
    {"0123456789+-=", {
     " ###    #    ###  #####    #  #####  ###  #####  ###   ###                    ",
     "#   #  ##   #   #    #    ##  #     #         # #   # #   #   #               ",
     "#  ##   #       #   #    # #  ####  #        #  #   # #   #   #         ##### ",
     "# # #   #      #     #  #  #      # ####    #    ###   #### ##### #####       ",
     "##  #   #     #       # #####     # #   #   #   #   #     #   #         ##### ",
     "#   #   #    #    #   #    #  #   # #   #   #   #   #     #   #               ",
     " ###   ###  #####  ###     #   ###   ###    #    ###   ###                    ",
     "                                                                              ",
     "                                                                              "}},
    {".,:;!?/()_%&'", {
     "                          #    ###         #     #          ##     ##     #   ",
     "                          #   #   #     #  #       #        ##  #  #      #   ",
     "              #     #     #       #    #  #         #          #  # #         ",
     "                          #      #    #   #         #         #    #          ",
     "                          #     #    #    #         #        #    # # #       ",
     " ##    ##     #     #                #     #       #        #  ## #  #        ",
     " ##    ##                 #     #           #     #    #####   ##  ## #       ",
     "        #           #                                                         ",
     "       #           #                                                          "}},
};
// clang-format on

constexpr int kLetters = 13;  // of each line

constexpr bool isComplete() {
  for (const Line& line : kFont) {
    if (std::string_view(line.letters).size() != size_t{kLetters}) return false;
    for (const char* row : line.dots) {
      if (std::string_view(row).size() != size_t{kLetters * kDotsAcross}) return false;
    }
  }
  return true;
}
static_assert(isComplete());

// The place of a letter in the mask, counted in letters; -1 for those outside the font.
int indexOf(char letter) {
  int first = 0;
  for (const Line& line : kFont) {
    const size_t found = std::string_view(line.letters).find(letter);
    if (found != std::string_view::npos) return first + static_cast<int>(found);
    first += kLetters;
  }
  return -1;
}

}  // namespace

Font::Font(int scale)
    : advance_(kDotsAcross * scale),
      height_(kDotsDown * scale),
      letters_(plainMask({kLetters * static_cast<int>(std::size(kFont)) * advance_, height_}, 0)) {
  int left = 0;
  for (const Line& line : kFont) {
    for (int y = 0; y < kDotsDown; ++y) {
      for (int x = 0; x < kLetters * kDotsAcross; ++x) {
        if (line.dots[y][x] != '#') continue;
        check(lumiSet_8u_C1R(kChosen, letters_.at(left + x * scale, y * scale), letters_.step(),
                             {scale, scale}),
              "lumiSet_8u_C1R");
      }
    }
    left += kLetters * advance_;
  }
}

void Font::draw(const std::string& text, Colour& on, int x, int y, const Rgb& colour) const {
  for (const char letter : text) {
    if (x + advance_ > on.size().width || y + height_ > on.size().height) return;
    const int index = indexOf(letter);
    if (index >= 0) {
      check(lumiSet_8u_C3MR(colour.data(), on.at(x, y), on.step(), {advance_, height_},
                            letters_.at(index * advance_, 0), letters_.step()),
            "lumiSet_8u_C3MR");
    }
    x += advance_;
  }
}
