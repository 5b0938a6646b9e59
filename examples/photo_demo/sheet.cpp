// SPDX-License-Identifier: MIT
#include "sheet.hpp"

#include <algorithm>

#include "shapes.hpp"
#include "text.hpp"

namespace {

constexpr int kColumns = 4, kMargin = 28, kPadding = 12, kLeast = 352;
constexpr Rgb kBackground = {30, 33, 40}, kCard = {44, 48, 58}, kTitle = {240, 242, 246},
              kDetail = {140, 176, 214};

}  // namespace

Colour makeSheet(const std::string& heading, const std::string& subheading, const std::vector<Card>& cards) {
  const Font large(4), text(2);
  LumiSize box = {kLeast, 0};  // room for each picture
  for (const Card& card : cards) {
    box.width =
        std::max({box.width, card.picture.size().width, text.width(card.title), text.width(card.detail)});
    box.height = std::max(box.height, card.picture.size().height);
  }
  const int lineHeight = text.height() + 6;
  const LumiSize cell = {box.width + 2 * kPadding, box.height + 3 * kPadding + 2 * lineHeight - 6};
  const int rows = (static_cast<int>(cards.size()) + kColumns - 1) / kColumns;
  const int top = kMargin + large.height() + kPadding + text.height() + kMargin;

  Colour sheet({kMargin + kColumns * (cell.width + kMargin), top + rows * (cell.height + kMargin)});
  fill(sheet, kBackground);
  large.draw(heading, sheet, kMargin, kMargin, kTitle);
  text.draw(subheading, sheet, kMargin, kMargin + large.height() + kPadding, kDetail);

  int index = 0;
  for (const Card& card : cards) {
    const int x = kMargin + index % kColumns * (cell.width + kMargin);
    const int y = top + index / kColumns * (cell.height + kMargin);
    const LumiSize picture = card.picture.size();
    fillRect(sheet, {x, y, cell.width, cell.height}, kCard);
    place(card.picture, sheet, x + (cell.width - picture.width) / 2,
          y + kPadding + (box.height - picture.height) / 2);
    const int below = y + box.height + 2 * kPadding;
    text.draw(card.title, sheet, x + kPadding, below, kTitle);
    text.draw(card.detail, sheet, x + kPadding, below + lineHeight, kDetail);
    ++index;
  }
  return sheet;
}
