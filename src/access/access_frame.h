// What every single tag access operation holds for the length of one call:
// the tag ID bytes, the result tag record obtained from the reader, the
// antenna selection and the access filter. Each step is an explicit call,
// so an entry point reads in the order of its own steps. Giving back is
// explicit too (returnTag, clearFilter, releaseTagID): the frame releases
// nothing by itself, so a step an entry point leaves out stays left out.
#pragma once

#include <jni.h>

#include <cstdint>

#include "bridge/conversions.h"
#include "reader_api.h"
#include "tags/filters.h"

namespace orla {

class AccessFrame {
 public:
  AccessFrame(JNIEnv* env, jint readerHandle);
  AccessFrame(const AccessFrame&) = delete;
  AccessFrame& operator=(const AccessFrame&) = delete;

  // The reader handle, sign-extended.
  READER_HANDLE handle() const { return handle_; }

  // The Java hexadecimal text in a buffer of exactly length bytes, through a
  // cleared wide buffer. The text must not hold more than 2 x length digits.
  const uint8_t* tagID(jstring text, jint length);

  // A tag record from the reader when Java passed a tag object, else NULL;
  // also NULL when the reader has none to give, and the operation still runs.
  TAG_DATA* requestTag(jobject tagData);

  // The antenna record, or NULL for a null Java object.
  ANTENNA_INFO* antennas(jobject antennaInfo);

  // The access filter with its two patterns, or NULL for a null Java object.
  ACCESS_FILTER* filter(jobject accessFilter);

  // On status 0 writes the tag record into the Java tag object; gives the
  // record back to the reader whatever the status.
  void returnTag(RFID_STATUS status, jboolean utcTime);

  // Releases the access filter if one was built. Its pattern bytes stay
  // allocated, as after every filtered call.
  void clearFilter();

  void releaseTagID();

  // The wide text the tag ID was converted from.
  wchar_t* tagText() { return tagText_; }

 private:
  // Room for 8 antennas and 8 qualifiers; Java must not ask for more.
  using Antennas = AntennaSelection<8, 8>;

  JNIEnv* env_;
  READER_HANDLE handle_;
  wchar_t tagText_[kWideTextChars];
  uint8_t* tagID_ = nullptr;
  jobject tagData_ = nullptr;
  TAG_DATA* tag_ = nullptr;
  Antennas antennas_;
  ACCESS_FILTER filter_;
  TAG_PATTERN patternA_;
  TAG_PATTERN patternB_;
  bool filterBuilt_ = false;
};

}  // namespace orla
