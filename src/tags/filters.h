// Antenna selections, tag patterns, access filters and post filters: Java
// request objects into the C records that tag operations take.
#pragma once

#include <jni.h>

#include <cstddef>
#include <cstdint>

#include "reader_api.h"

// Bytes that hold a tag pattern or mask of bitCount bits: ceil(bitCount / 8),
// on the unsigned 16-bit count.
inline size_t patternByteCount(uint16_t bitCount) { return (static_cast<size_t>(bitCount) + 7) >> 3; }

// Fills an ANTENNA_INFO whose two list pointers already lead to caller
// arrays large enough for the Java "length": the Java arrays' own lengths
// are never consulted. A null "antennaOpList" sets antennaOpList to NULL.
void GetAntennaInfoFromJobject(JNIEnv* env, jobject antennaInfo, ANTENNA_INFO* record);

// Fills a filter and the caller's two pattern records it is made to point at.
// The mask and pattern bytes of each pattern, and the RSSI range block, are
// allocated here; the clear functions below free the masks and the RSSI
// range, never the pattern bytes. The two conversions are the same one on
// two record types; each operation keeps to its own.
void GetAccessFilterInfoFromJobject(JNIEnv* env, jobject filter, ACCESS_FILTER* record, TAG_PATTERN* patternA,
                                    TAG_PATTERN* patternB);
void GetPostFilterInfoFromJobject(JNIEnv* env, jobject filter, POST_FILTER* record, TAG_PATTERN* patternA,
                                  TAG_PATTERN* patternB);

// Releases what a filter conversion allocated, except the pattern bytes,
// which stay allocated after every filtered call. Call after the C API call,
// only when a filter was built.
void clearAccessFilter(ACCESS_FILTER* record);
void clearPostFilter(POST_FILTER* record);

namespace orla {

// An ANTENNA_INFO with its two lists, as an operation keeps it on its stack.
// The conversion writes as many entries as Java says; callers keep within
// the capacities.
template <size_t AntennaCapacity, size_t QualifierCapacity>
struct AntennaSelection {
  ANTENNA_INFO info;
  uint16_t antennaList[AntennaCapacity];
  uint32_t antennaOpList[QualifierCapacity];

  AntennaSelection() {
    info.antennaList = antennaList;
    info.antennaOpList = antennaOpList;
  }
  AntennaSelection(const AntennaSelection&) = delete;
  AntennaSelection& operator=(const AntennaSelection&) = delete;

  // The record filled from Java, or NULL for a null Java object.
  ANTENNA_INFO* from(JNIEnv* env, jobject antennaInfo) {
    if (antennaInfo == nullptr) return nullptr;
    GetAntennaInfoFromJobject(env, antennaInfo, &info);
    return &info;
  }
};

}  // namespace orla
