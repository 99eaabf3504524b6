#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <vector>

#include "bridge/conversions.h"

namespace {

constexpr unsigned char kUntouched = 0xEE;

// Runs the conversion into a buffer prefilled with kUntouched.
std::array<unsigned char, 8> convert(const wchar_t* text) {
  std::array<unsigned char, 8> out;
  out.fill(kUntouched);
  std::wstring copy(text);
  ConverStringToByteArray(copy.data(), out.data());
  return out;
}

TEST(ConverStringToByteArray, PairsDigitsOfEitherCase) {
  auto out = convert(L"0aF1");
  EXPECT_EQ(out[0], 0x0A);
  EXPECT_EQ(out[1], 0xF1);
  EXPECT_EQ(out[2], kUntouched);

  out = convert(L"fFaA09");
  EXPECT_EQ(out[0], 0xFF);
  EXPECT_EQ(out[1], 0xAA);
  EXPECT_EQ(out[2], 0x09);
  EXPECT_EQ(out[3], kUntouched);
}

TEST(ConverStringToByteArray, OddLengthDropsTheLastDigitAndEmptyWritesNothing) {
  auto out = convert(L"ABC");
  EXPECT_EQ(out[0], 0xAB);
  EXPECT_EQ(out[1], kUntouched);

  out = convert(L"");
  for (unsigned char b : out) EXPECT_EQ(b, kUntouched);
}

TEST(ConverStringToByteArray, NonDigitsTakeAPositionAndLeaveStaleSlots) {
  // "G" stores nothing: the second slot still holds what it had before the
  // call, so only the high nibble is known.
  auto out = convert(L"1G23");
  EXPECT_EQ(out[0] >> 4, 0x1);
  EXPECT_EQ(out[1], 0x23);
  EXPECT_EQ(out[2], kUntouched);

  // The "-" is a character like any other: "12-345" pairs as 12, -3, 45 and
  // the middle pair keeps the stale second digit 2 from "12".
  out = convert(L"12-345");
  EXPECT_EQ(out[0], 0x12);
  EXPECT_EQ(out[1], 0x32);
  EXPECT_EQ(out[2], 0x45);
  EXPECT_EQ(out[3], kUntouched);

  // Two non-digits in a pair repeat the previous byte.
  out = convert(L"9C--");
  EXPECT_EQ(out[0], 0x9C);
  EXPECT_EQ(out[1], 0x9C);
  EXPECT_EQ(out[2], kUntouched);
}

TAG_DATA tagWithId(std::vector<uint8_t>& id) {
  TAG_DATA tag{};
  tag.pTagID = id.data();
  tag.tagIDLength = static_cast<uint32_t>(id.size());
  return tag;
}

TEST(PrintTagData, ReturnsZeroForAnEmptyIdAndTheLastDigitCountOtherwise) {
  std::vector<uint8_t> none;
  TAG_DATA tag = tagWithId(none);
  EXPECT_EQ(printTagData(&tag), 0);

  std::vector<uint8_t> one{0x5A};
  tag = tagWithId(one);
  EXPECT_EQ(printTagData(&tag), 2);

  // 25 bytes: 50 digits and 12 dashes, the most the buffer holds.
  std::vector<uint8_t> longest(25);
  for (size_t i = 0; i < longest.size(); ++i) longest[i] = static_cast<uint8_t>(0xA0 + i);
  tag = tagWithId(longest);
  EXPECT_EQ(printTagData(&tag), 2);
}

}  // namespace
