// SPDX-License-Identifier: MIT
#include "sheet.hpp"

#include <algorithm>
#include <utility>

#include "shapes.hpp"
#include "text.hpp"

namespace {

constexpr int kMargin = 28, kPadding = 12, kLeast = 352;
constexpr Rgb kBackground = {30, 33, 40}, kCard = {44, 48, 58}, kTitle = {240, 242, 246},
              kDetail = {140, 176, 214};

class Sheet {
 public:
  Sheet(const std::string& heading, const std::string& subheading, const std::vector<Section>& sections)
      : box_(boxFor(sections)), sheet_({kMargin + kColumns * (cell().width + kMargin), heightOf(sections)}) {
    fill(sheet_, kBackground);
    large_.draw(heading, sheet_, kMargin, kMargin, kTitle);
    text_.draw(subheading, sheet_, kMargin, kMargin + large_.height() + kPadding, kDetail);
    int y = top();
    for (const Section& section : sections) {
      medium_.draw(section.title, sheet_, kMargin, y, kTitle);
      y += titleHeight(section);
      draw(section.cards, y);
      y += rows(section) * (cell().height + kMargin);
    }
  }

  Colour take() { return std::move(sheet_); }

 private:
  // Room for each picture.
  LumiSize boxFor(const std::vector<Section>& sections) const {
    LumiSize box = {kLeast, 0};
    for (const Section& section : sections) {
      for (const Card& card : section.cards) {
        box.width = std::max(
            {box.width, card.picture.size().width, text_.width(card.title), text_.width(card.detail)});
        box.height = std::max(box.height, card.picture.size().height);
      }
    }
    return box;
  }

  int heightOf(const std::vector<Section>& sections) const {
    int height = top();
    for (const Section& section : sections)
      height += titleHeight(section) + rows(section) * (cell().height + kMargin);
    return height;
  }

  void draw(const std::vector<Card>& cards, int top) {
    int index = 0;
    for (const Card& card : cards) {
      draw(card, kMargin + index % kColumns * (cell().width + kMargin),
           top + index / kColumns * (cell().height + kMargin));
      ++index;
    }
  }

  void draw(const Card& card, int x, int y) {
    const LumiSize picture = card.picture.size();
    fillRect(sheet_, {x, y, cell().width, cell().height}, kCard);
    place(card.picture, sheet_, x + (cell().width - picture.width) / 2,
          y + kPadding + (box_.height - picture.height) / 2);
    const int below = y + box_.height + 2 * kPadding;
    text_.draw(card.title, sheet_, x + kPadding, below, kTitle);
    text_.draw(card.detail, sheet_, x + kPadding, below + lineHeight(), kDetail);
  }

  static int rows(const Section& section) {
    return (static_cast<int>(section.cards.size()) + kColumns - 1) / kColumns;
  }
  int titleHeight(const Section& section) const {
    return section.title.empty() ? 0 : medium_.height() + kPadding;
  }
  int lineHeight() const { return text_.height() + 6; }
  int top() const { return kMargin + large_.height() + kPadding + text_.height() + kMargin; }
  LumiSize cell() const {
    return {box_.width + 2 * kPadding, box_.height + 3 * kPadding + 2 * lineHeight() - 6};
  }

  const Font large_{4}, medium_{3}, text_{2};
  LumiSize box_;
  Colour sheet_;
};

}  // namespace

Colour makeSheet(const std::string& heading, const std::string& subheading,
                 const std::vector<Section>& sections) {
  return Sheet(heading, subheading, sections).take();
}
