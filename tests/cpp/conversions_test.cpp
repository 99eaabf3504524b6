#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <vector>

#include "bridge/conversions.h"

namespace {

constexpr unsigned char kU = 0xEE;  // a byte the conversion left untouched
using Out = std::array<unsigned char, 8>;

// Runs the conversion into a buffer prefilled with kU.
Out convert(const wchar_t* text) {
  Out out;
  out.fill(kU);
  std::wstring copy(text);
  ConverStringToByteArray(copy.data(), out.data());
  return out;
}

TEST(ConverStringToByteArray, PairsDigitsOfEitherCaseAndDropsAnOddLastDigit) {
  EXPECT_EQ(convert(L"0aF1"), (Out{0x0A, 0xF1, kU, kU, kU, kU, kU, kU}));
  EXPECT_EQ(convert(L"fFaA09"), (Out{0xFF, 0xAA, 0x09, kU, kU, kU, kU, kU}));
  EXPECT_EQ(convert(L"ABC"), (Out{0xAB, kU, kU, kU, kU, kU, kU, kU}));
  EXPECT_EQ(convert(L""), (Out{kU, kU, kU, kU, kU, kU, kU, kU}));
}

TEST(ConverStringToByteArray, NonDigitsTakeAPositionAndLeaveStaleSlots) {
  // "G" stores nothing: the second slot still holds what it had before the
  // call, so only the high nibble is known.
  Out out = convert(L"1G23");
  EXPECT_EQ(out[0] >> 4, 0x1);
  EXPECT_EQ(out[1], 0x23);
  EXPECT_EQ(out[2], kU);

  // The "-" is a character like any other: "12-345" pairs as 12, -3, 45 and
  // the middle pair keeps the stale second digit 2 from "12".
  EXPECT_EQ(convert(L"12-345"), (Out{0x12, 0x32, 0x45, kU, kU, kU, kU, kU}));
  // Two non-digits in a pair repeat the previous byte.
  EXPECT_EQ(convert(L"9C--"), (Out{0x9C, 0x9C, kU, kU, kU, kU, kU, kU}));
}

int printed(std::vector<uint8_t> id) {
  TAG_DATA tag{};
  tag.pTagID = id.data();
  tag.tagIDLength = static_cast<uint32_t>(id.size());
  return printTagData(&tag);
}

TEST(PrintTagData, ReturnsZeroForAnEmptyIdAndTheLastDigitCountOtherwise) {
  EXPECT_EQ(printed({}), 0);
  EXPECT_EQ(printed({0x5A}), 2);
  // 25 bytes: 50 digits and 12 dashes, the most the buffer holds.
  std::vector<uint8_t> longest(25);
  for (size_t i = 0; i < longest.size(); ++i) longest[i] = static_cast<uint8_t>(0xA0 + i);
  EXPECT_EQ(printed(longest), 2);
}

}  // namespace
