// Java parameter objects into the parameter records of the single tag
// access operations (Gen2, NXP and Impinj, Gen2v2) and of the operations of
// an access sequence, which carry the same records.
//
// Passwords are Java longs of which the low 32 bits are stored; lengths and
// offsets are Java shorts stored as the same 16 bits; booleans become one
// byte, 1 or 0; enums their ordinal. The new* functions allocate the record
// (and the buffer it points to) and give NULL for a null Java object; the
// records with a buffer have a delete* function that frees the buffer,
// clears its pointer, then frees the record. Lengths are not checked
// against the Java arrays they count.
#pragma once

#include <jni.h>

#include <cstdint>

#include "reader_api.h"

// Gen2 operations.

// Fills the caller's record, left uncleared; NULL for a null Java object.
READ_ACCESS_PARAMS* fillReadParams(JNIEnv* env, jobject params, READ_ACCESS_PARAMS* record);
// Zeroed, with writeDataLength bytes of "writeData".
WRITE_ACCESS_PARAMS* newWriteParams(JNIEnv* env, jobject params);
void deleteWriteParams(WRITE_ACCESS_PARAMS* record);
BLOCK_ERASE_ACCESS_PARAMS* newBlockEraseParams(JNIEnv* env, jobject params);
// The first five elements of "enumPrivilege", widened.
LOCK_ACCESS_PARAMS* newLockParams(JNIEnv* env, jobject params);
KILL_ACCESS_PARAMS* newKillParams(JNIEnv* env, jobject params);
// With a mask buffer of maskLength bytes, filled from "mask" only when
// maskLength is not 0.
BLOCK_PERMALOCK_ACCESS_PARAMS* newBlockPermalockParams(JNIEnv* env, jobject params);
void deleteBlockPermalockParams(BLOCK_PERMALOCK_ACCESS_PARAMS* record);
RECOMMISSION_ACCESS_PARAMS* newRecommissionParams(JNIEnv* env, jobject params);
// The access password, kill password and tag ID writes; writeDataLength
// bytes of "writeData".
WRITE_FIELD_ACCESS_PARAMS* newWriteFieldParams(JNIEnv* env, jobject params);
void deleteWriteFieldParams(WRITE_FIELD_ACCESS_PARAMS* record);

// NXP and Impinj commands: every record zeroed.

NXP_READ_PROTECT_PARAMS* newNxpReadProtectParams(JNIEnv* env, jobject params);
NXP_RESET_READ_PROTECT_PARAMS* newNxpResetReadProtectParams(JNIEnv* env, jobject params);
NXP_SET_EAS_PARAMS* newNxpSetEasParams(JNIEnv* env, jobject params);
NXP_CHANGE_CONFIG_PARAMS* newNxpChangeConfigParams(JNIEnv* env, jobject params);
IMPINJ_QT_WRITE_PARAMS* newImpinjQtWriteParams(JNIEnv* env, jobject params);
IMPINJ_QT_READ_PARAMS* newImpinjQtReadParams(JNIEnv* env, jobject params);

// Gen2v2 commands.

// Zeroed, with a message buffer of length / 8 bytes (whole bytes of the
// bit length) copied from "pMessage".
AUTHENTICATE_PARAMS* newAuthenticateParams(JNIEnv* env, jobject params);
// Zeroes and fills the caller's record; the Java object is required.
void fillUntraceableParams(JNIEnv* env, jobject params, UNTRACEABLE_PARAMS* record);
// Writes the three fields only; the rest of the record is left as it was.
void fillReadBufferParams(JNIEnv* env, jobject params, READ_BUFFER_PARAMS* record);
// Zeroed, with the first three elements of "IChallenge".
CRYPTO_PARAMS* newCryptoParams(JNIEnv* env, jobject params);

// Field by field, in the order each record lists them, into a record that
// the caller allocated (and zeroed or not, as its operation wants); the Java
// object must not be null. The single operations and the access sequences
// both fill their records through these. A data or mask buffer is
// allocated here and hung on the record; its owner frees it.

// Read and block erase share their four fields; defined for these two
// records only.
template <class Record>
void fillMemoryRangeParams(JNIEnv* env, jobject params, Record* record);
// With writeDataLength bytes of "writeData" in a buffer of their own.
void fillWriteParams(JNIEnv* env, jobject params, WRITE_ACCESS_PARAMS* record);
// The first five elements of "enumPrivilege" pass through a buffer of five
// 16-bit values before they are widened; that buffer is returned, and the
// caller frees it.
uint16_t* fillLockParams(JNIEnv* env, jobject params, LOCK_ACCESS_PARAMS* record);
void fillKillParams(JNIEnv* env, jobject params, KILL_ACCESS_PARAMS* record);
// A mask buffer of maskLength bytes, allocated even when empty and filled
// from "mask" only when maskLength is not 0.
void fillBlockPermalockParams(JNIEnv* env, jobject params, BLOCK_PERMALOCK_ACCESS_PARAMS* record);
void fillRecommissionParams(JNIEnv* env, jobject params, RECOMMISSION_ACCESS_PARAMS* record);
// NXP read protect, NXP reset read protect and Impinj QT read carry only
// the password; defined for these three records only.
template <class Record>
void fillAccessPasswordParams(JNIEnv* env, jobject params, Record* record);
void fillNxpSetEasParams(JNIEnv* env, jobject params, NXP_SET_EAS_PARAMS* record);
void fillNxpChangeConfigParams(JNIEnv* env, jobject params, NXP_CHANGE_CONFIG_PARAMS* record);
// The control word is that of the IMPINJ_QT_DATA object in "qtData".
void fillImpinjQtWriteParams(JNIEnv* env, jobject params, IMPINJ_QT_WRITE_PARAMS* record);
