// The reader API functions the tag side of the simulator exports, as it
// defines them: reader and event handles are 64-bit, statuses 32-bit, C
// booleans one byte; records are passed as untyped pointers and read at
// their byte offsets.
#pragma once

#include <cstdint>

extern "C" {

// Tag records and the tag buffer.
void* RFID_AllocateTag(int64_t handle);
int32_t RFID_DeallocateTag(int64_t handle, void* tag);
int32_t RFID_GetReadTag(int64_t handle, void* tag);
int32_t rfid_GetReadTags(int64_t handle, uint32_t max, void** records, uint32_t* count);
int32_t rfid_DeallocateTags(int64_t handle, void** records, uint32_t count);

// Continuous operations.
int32_t RFID_PerformInventory(int64_t handle, void* postFilter, void* antennaInfo,
                              void* triggerInfo, void* reserved);
int32_t RFID_StopInventory(int64_t handle);
int32_t RFID_PurgeTags(int64_t handle, uint32_t flags);
int32_t RFID_PerformTagLocationing(int64_t handle, const uint8_t* tagID, uint32_t length,
                                   void* antennaInfo, void* reserved1, void* reserved2);
int32_t RFID_StopTagLocationing(int64_t handle);
int32_t RFID_PerformNXPEASScan(int64_t handle, void* antennaInfo, void* triggerInfo,
                               void* reserved);
int32_t RFID_StopNXPEASScan(int64_t handle);

// Settings that shape reading.
int32_t RFID_AddPreFilter(int64_t handle, uint16_t antenna, void* preFilter, uint32_t* index);
int32_t RFID_DeletePreFilter(int64_t handle, uint16_t antenna, uint32_t index);
int32_t RFID_GetTagStorageSettings(int64_t handle, void* settings);
int32_t RFID_SetTagStorageSettings(int64_t handle, void* settings);
int32_t RFID_GetSingulationControl(int64_t handle, uint16_t antenna, void* control);
int32_t RFID_SetSingulationControl(int64_t handle, uint16_t antenna, void* control);

// Reader events.
int32_t RFID_RegisterEventNotification(int64_t handle, uint32_t type, int64_t event);
int32_t RFID_DeregisterEventNotification(int64_t handle, uint32_t type);
int32_t RFID_GetEventData(int64_t handle, uint32_t type, void* record);

// Event objects.
int64_t rfidUtils_CreateEvent(void* attributes, int32_t manualReset, int32_t initialState,
                              void* name);
int32_t rfidUtils_SetEvent(int64_t event);
int32_t rfidUtils_ResetEvent(int64_t event);
int32_t rfidUtils_CloseHandle(int64_t event);
int32_t rfidUtils_WaitForSingleObject(int64_t event, int64_t timeoutMs);
int32_t rfidUtils_WaitForMultipleObjects(int64_t count, const int64_t* handles, uint8_t waitAll,
                                         int64_t timeoutMs);

}  // extern "C"
