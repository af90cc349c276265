// SPDX-License-Identifier: MIT
#include "desktop/uikit/text/text_pieces.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace desktop::uikit {
namespace {

using testing::ElementsAre;

std::vector<std::u16string> textsOf(std::u16string_view text) {
  std::vector<std::u16string> texts;
  for (const TextPiece& piece : piecesOf(text))
    texts.emplace_back(text.substr(piece.start, piece.length));
  return texts;
}

TEST(TextPieces, ParagraphsEndAtEveryKindOfBreak) {
  EXPECT_THAT(textsOf(u"a\nb\rc\r\nd\x85"
                      u"e\x2029"
                      u"f"),
              ElementsAre(u"a", u"b", u"c", u"d", u"e", u"f"));
  for (const TextPiece& piece : piecesOf(u"a\nb\rc\r\nd\x85"
                                         u"e\x2029"
                                         u"f")) {
    EXPECT_TRUE(piece.beginsParagraph);
    EXPECT_TRUE(piece.endsParagraph);
  }
}

TEST(TextPieces, ThereIsAlwaysOne) {
  EXPECT_THAT(textsOf(u""), ElementsAre(u""));
  EXPECT_THAT(textsOf(u"\n"), ElementsAre(u"", u""));
  EXPECT_THAT(textsOf(u"\r\n\n"), ElementsAre(u"", u"", u""));
}

TEST(TextPieces, LineBreaksStayWithinTheirParagraph) {
  const auto pieces = piecesOf(
      u"a\x2028"
      u"b\x0B"
      u"c\nd");
  ASSERT_EQ(pieces.size(), 4u);
  EXPECT_EQ(pieces[0], (TextPiece{0, 1, 1, true, false}));
  EXPECT_EQ(pieces[1], (TextPiece{2, 1, 1, false, false}));
  EXPECT_EQ(pieces[2], (TextPiece{4, 1, 1, false, true}));
  EXPECT_EQ(pieces[3], (TextPiece{6, 1, 0, true, true}));
}

TEST(TextPieces, LongParagraphsAreBrokenBehindABlank) {
  std::u16string text(2 * longestPiece, u'x');
  text[longestPiece - 100] = u' ';
  const auto pieces = piecesOf(text);
  ASSERT_EQ(pieces.size(), 3u);
  EXPECT_EQ(pieces[0], (TextPiece{0, longestPiece - 99, 0, true, false}));
  EXPECT_EQ(pieces[1].length, longestPiece);
  EXPECT_FALSE(pieces[1].beginsParagraph);
  EXPECT_TRUE(pieces[2].endsParagraph);
  EXPECT_EQ(pieces[2].end(), text.size());
}

TEST(TextPieces, CharactersAreNeverBroken) {
  std::u16string text = u"x";
  while (text.size() < 2 * longestPiece) text += u"\U0001F4F7";
  for (const TextPiece& piece : piecesOf(text))
    EXPECT_FALSE(text[piece.start] >= 0xDC00 && text[piece.start] < 0xE000) << piece.start;
}

}  // namespace
}  // namespace desktop::uikit
