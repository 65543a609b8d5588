#include <gtest/gtest.h>

#include "framework/RowText.h"

namespace qutav::test {
namespace {

TEST(RowTextTest, RowsAreEqualWithoutRegardToCase) {
  EXPECT_TRUE(RowsEqual(u"C:\\Keys\\My.P12", u"c:\\keys\\mY.p12"));
  EXPECT_TRUE(RowsEqual(u"", u""));
  EXPECT_FALSE(RowsEqual(u"a", u"b"));
}

TEST(RowTextTest, RowsOfDifferentLengthAreNotEqual) {
  EXPECT_FALSE(RowsEqual(u"abc", u"ab"));
  EXPECT_FALSE(RowsEqual(u"ab", u"abc"));
}

TEST(RowTextTest, LettersOfAllAlphabetsHaveACase) {
  EXPECT_TRUE(RowsEqual(u"\u00C4\u00D6\u00DC", u"\u00E4\u00F6\u00FC"));
  EXPECT_TRUE(RowsEqual(u"\u0416\u0423\u041A", u"\u0436\u0443\u043A"));
  EXPECT_TRUE(RowsEqual(u"\u03A3", u"\u03C3"));
  EXPECT_TRUE(RowsEqual(u"\u0141\u00D3D\u0179", u"\u0142\u00F3d\u017A"));
}

TEST(RowTextTest, WhatHasNoCaseIsComparedAsItStands) {
  EXPECT_TRUE(RowsEqual(u"\u4E2D\u6587 1", u"\u4E2D\u6587 1"));
  EXPECT_FALSE(RowsEqual(u"\u4E2D", u"\u6587"));
  EXPECT_FALSE(RowsEqual(u"\u00DF", u"ss"));
  EXPECT_FALSE(RowsEqual(u"a", u"\u00E4"));
}

TEST(RowTextTest, CharactersOutsideTheBasicPlaneAreComparedUnitByUnit) {
  EXPECT_TRUE(RowsEqual(u"\U0001F600", u"\U0001F600"));
  EXPECT_FALSE(RowsEqual(u"\U0001F600", u"\U0001F601"));
}

TEST(RowTextTest, ARowBeginsWithATextWithoutRegardToCase) {
  EXPECT_TRUE(RowBeginsWith(u"C:\\Keys\\my.p12", u"c:\\keys"));
  EXPECT_TRUE(RowBeginsWith(u"\u00C4pfel", u"\u00E4PF"));
  EXPECT_TRUE(RowBeginsWith(u"a", u"A"));
  EXPECT_FALSE(RowBeginsWith(u"C:\\Keys", u"C:\\Keys\\"));
  EXPECT_FALSE(RowBeginsWith(u"my keys", u"keys"));
}

TEST(RowTextTest, TheOrderOfRowsHasNoRegardToCase) {
  EXPECT_TRUE(RowComesBefore(u"alpha", u"BETA"));
  EXPECT_TRUE(RowComesBefore(u"Alpha", u"beta"));
  EXPECT_FALSE(RowComesBefore(u"beta", u"ALPHA"));
  EXPECT_TRUE(RowComesBefore(u"\u00C4", u"\u00F6"));
  EXPECT_TRUE(RowComesBefore(u"\u00E4", u"\u00D6"));
}

TEST(RowTextTest, ARowComesBeforeItsContinuationAndNeverBeforeItself) {
  EXPECT_TRUE(RowComesBefore(u"ab", u"abc"));
  EXPECT_FALSE(RowComesBefore(u"abc", u"ab"));
  EXPECT_FALSE(RowComesBefore(u"AB", u"ab"));
  EXPECT_FALSE(RowComesBefore(u"ab", u"AB"));
}

}  // namespace
}  // namespace qutav::test
