#include "bridge/conversions.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "bridge/utf_chars.h"

void JavaToWSZ(JNIEnv* env, jstring source, wchar_t* destination) {
  if (source == nullptr) return;
  static_cast<void>(env->GetStringLength(source));  // asked for, never used
  const orla::UtfChars utf(env, source);
  std::mbstowcs(destination, utf.get(), kWideTextChars);
}

namespace {

// 0..15 for a hexadecimal digit of either case, -1 for anything else.
int hexDigitValue(wchar_t c) {
  if (c >= L'0' && c <= L'9') return c - L'0';
  if (c >= L'A' && c <= L'F') return c - L'A' + 10;
  if (c >= L'a' && c <= L'f') return c - L'a' + 10;
  return -1;
}

// Formats at the end of the text already in buffer, never past its end, and
// returns what snprintf returns.
template <size_t N, typename... Args>
int appendFormatted(char (&buffer)[N], const char* format, Args... args) {
  const size_t used = std::strlen(buffer);
  return std::snprintf(buffer + used, N - used, format, args...);
}

}  // namespace

// Bytes are paired by character position, not by digit count: the
// characters at positions 2k and 2k+1 make byte k, written when position
// 2k+1 is reached. Hence:
//  - text of odd length: the last character is read but never written, so
//    "ABC" gives the single byte AB and leaves the next byte alone;
//  - a character that is not a hex digit ("-", a blank, "G") still takes up
//    its position but stores no digit, so its slot keeps the digit of the
//    previous pair: "1G23" gives 1x then 23, where x is whatever the second
//    slot held, and a pair of two non-digits repeats the previous byte.
// Callers must pass clean hexadecimal text of even length. The slots start
// at zero here only so that the first pair has a defined value; nothing
// may rely on it.
void ConverStringToByteArray(wchar_t* text, unsigned char* destination) {
  const size_t length = std::wcslen(text);
  unsigned char slot[2] = {0, 0};
  int next = 0;
  for (size_t position = 0; position < length; ++position) {
    const int digit = hexDigitValue(text[position]);
    if (digit >= 0) slot[next++] = static_cast<unsigned char>(digit);
    if (position % 2 == 1) {
      destination[(position - 1) / 2] = static_cast<unsigned char>((slot[0] << 4) + slot[1]);
      next = 0;
    }
  }
}

// The 64-byte buffer holds the text of identifiers of up to 25 bytes; the
// text of a longer one is cut short.
int printTagData(TAG_DATA* tag) {
  char text[64] = {};
  if (tag->tagIDLength == 0) return 0;
  int result = 0;
  for (uint32_t i = 0; i < tag->tagIDLength; ++i) {
    result = appendFormatted(text, "%02X", tag->pTagID[i]);
    if (i % 2 == 1 && i + 1 < tag->tagIDLength) appendFormatted(text, "%c", '-');
  }
  return result;
}
