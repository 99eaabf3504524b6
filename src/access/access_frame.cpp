#include "access/access_frame.h"

#include <cstring>

#include "tags/tag_data.h"

namespace orla {

AccessFrame::AccessFrame(JNIEnv* env, jint readerHandle)
    : env_(env), handle_(static_cast<READER_HANDLE>(readerHandle)) {}

const uint8_t* AccessFrame::tagID(jstring text, jint length) {
  std::memset(tagText_, 0, sizeof tagText_);
  JavaToWSZ(env_, text, tagText_);
  tagID_ = new uint8_t[length];
  ConverStringToByteArray(tagText_, tagID_);
  return tagID_;
}

TAG_DATA* AccessFrame::requestTag(jobject tagData) {
  if (tagData == nullptr) return nullptr;
  tagData_ = tagData;
  tag_ = RFID_AllocateTag(handle_);
  return tag_;
}

ANTENNA_INFO* AccessFrame::antennas(jobject antennaInfo) { return antennas_.from(env_, antennaInfo); }

ACCESS_FILTER* AccessFrame::filter(jobject accessFilter) {
  if (accessFilter == nullptr) return nullptr;
  GetAccessFilterInfoFromJobject(env_, accessFilter, &filter_, &patternA_, &patternB_);
  filterBuilt_ = true;
  return &filter_;
}

void AccessFrame::returnTag(RFID_STATUS status, jboolean utcTime) {
  if (tag_ == nullptr) return;
  if (status == 0) SetTagDataToJobject(env_, tagData_, tag_, utcTime != JNI_FALSE);
  RFID_DeallocateTag(handle_, tag_);
}

void AccessFrame::clearFilter() {
  if (filterBuilt_) clearAccessFilter(&filter_);
}

void AccessFrame::releaseTagID() { delete[] tagID_; }

}  // namespace orla
