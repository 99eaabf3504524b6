#include "native_table.h"

namespace jt {

const std::vector<Row>& nativeRows() {
  static const std::vector<Row> rows = {
      Row("RFID_Connect")
          .order({"ReleaseStringUTFChars", "GetLongArrayElements", "new 104", "C RFID_ConnectW",
                  "ReleaseLongArrayElements",
                  "delete[] 2 #1", "delete[] 2 #2", "delete[] 2 #3", "delete[] 2 #4", "delete 104"}),
      Row("RFID_Reconnect"), Row("RFID_DisConnect"),
      Row("RFID_Login").keepsChars(3)
          .order({"GetLongArrayElements", "new 3144", "forceLogin", "C RFID_LoginW", "delete 3144",
                  "ReleaseLongArrayElements"}),
      Row("RFID_Logout"), Row("RFID_Restart"), Row("RFID_GetLLRPConnectionConfig"),
      Row("RFID_SetLLRPConnectionConfig").keeps("40").keepsChars(1)
          .order({"isClient", "GetStringUTFChars", "port", "pSecureModeConfig", "new 40",
                  "C RFID_SetLLRPConnectionConfigW"}),
      Row("RFID_InitiateLLRPConnectionFromReader"), Row("RFID_DisconnectLLRPConnectionFromReader"),
      Row("RFID_AcceptConnection")
          .order({"GetLongArrayElements", "timeoutMilliseconds", "rfidVersion", "C RFID_AcceptConnection",
                  "ReleaseLongArrayElements"}),
      Row("rfidUtils_CreateEvent").noStatus(), Row("rfidUtils_SetEvent"), Row("rfidUtils_ResetEvent"),
      Row("rfidUtils_CloseHandle"), Row("rfidUtils_WaitForSingleObject"),
      Row("rfidUtils_WaitForMultipleObjects")
          .order({"GetLongArrayElements", "new[] 16", "C rfidUtils_WaitForMultipleObjects", "ReleaseLongArrayElements",
                  "delete[] 16"}),
      Row("RFID_RegisterEventNotification"), Row("RFID_DeregisterEventNotification"),
      Row("RFID_GetEventData").arg("1.ordinal", 0),
      Row("RFID_GetLastErrorInfo")
          .order({"C RFID_GetLastErrorInfoW", ".statusDesc=", ".vendorMessage=", ".enumRfidStatusCode=", ".Year=",
                  ".Month=",
                  ".DayOfWeek=", ".Day=", ".Hour=", ".Minute=", ".Second=", ".Milliseconds="}),
      Row("RFID_GetErrorDescription").noStatus(), Row("RFID_GetDllVersionInfo"), Row("RFID_SetTraceLevel"),
      Row("RFID_AllocateTag").noStatus(), Row("RFID_DeallocateTag"), Row("RFID_GetReadTag"),
      Row("rfid_GetReadTags")
          .order({"GetIntArrayElements", "new[] 16", "C rfid_GetReadTags", "C rfid_DeallocateTags", "delete[] 16",
                  "ReleaseIntArrayElements"}),
      Row("RFID_PerformInventory").keeps("16 6 [1 [1 256")
          .order({"new 16", "new 6", "POST_FILTER.structInfo", "ANTENNA_INFO.length", "TRIGGER_INFO.", "new 256",
                  "TRIGGER_INFO.extraTriggers", "C RFID_PerformInventory", "delete 40", "delete[] 1", "delete[] 1"}),
      Row("RFID_StopInventory"), Row("RFID_PurgeTags"),
      Row("RFID_PerformTagLocationing")
          .order({"new[] 2", "ReleaseStringUTFChars", "ANTENNA_INFO.length", "C RFID_PerformTagLocationing",
                  "delete[] 2"}),
      Row("RFID_StopTagLocationing"),
      Row("RFID_PerformNXPEASScan").keeps("256")
          .order({"ANTENNA_INFO.length", "TRIGGER_INFO.", "new 256", "TRIGGER_INFO.extraTriggers",
                  "C RFID_PerformNXPEASScan"}),
      Row("RFID_StopNXPEASScan"),
      Row("RFID_AddPreFilter").keeps("[1")
          .order({"GetIntArrayElements", "tagPatternBitCount", "new[] 1", "C RFID_AddPreFilter",
                  "ReleaseIntArrayElements"}),
      Row("RFID_DeletePreFilter"), Row("RFID_GetTagStorageSettings"), Row("RFID_SetTagStorageSettings"),
      Row("RFID_GetSingulationControl"), Row("RFID_SetSingulationControl"),
      Row("RFID_Read").keeps("[1 [1")
          .order({"ReleaseStringUTFChars", "new[] 2", "C RFID_AllocateTag", "READ_ACCESS_PARAMS.",
                  "ANTENNA_INFO.length",
                  "ACCESS_FILTER.structInfo", "C RFID_Read", "C RFID_DeallocateTag", "delete 40",
                  "delete[] 1", "delete[] 1", "delete[] 2"}),
      Row("RFID_Write").keeps("[1 [1"), Row("RFID_BlockWrite").keeps("[1 [1"), Row("RFID_BlockErase").keeps("[1 [1"),
      Row("RFID_Lock").keeps("[1 [1").freesEarly(1), Row("RFID_Kill").keeps("[1 [1"),
      Row("RFID_BlockPermalock")
          .keeps("[1 [1")
          .order({"C RFID_AllocateTag", "BLOCK_PERMALOCK_ACCESS_PARAMS.", "C RFID_BlockPermalock", "TAG_DATA.tagID=",
                  "C RFID_DeallocateTag"}),
      Row("RFID_Recommission").keeps("[1 [1"), Row("RFID_WriteAccessPassword"), Row("RFID_WriteKillPassword"),
      Row("RFID_WriteTagID"), Row("RFID_NXPReadProtect").keeps("[1 [1"), Row("RFID_NXPResetReadProtect"),
      Row("RFID_NXPSetEAS").keeps("[1 [1"), Row("RFID_NXPChangeConfig").keeps("[1 [1"),
      Row("RFID_ImpinjQTWrite").keeps("[1 [1"), Row("RFID_ImpinjQTRead").keeps("[1 [1"),
      Row("RFID_Athenticate").keeps("[1 [1")
          .order({"C RFID_AllocateTag", "new 56", "AUTHENTICATE_PARAMS.sendRsp", "AUTHENTICATE_PARAMS.incRespLen",
                  "AUTHENTICATE_PARAMS.CSI", "AUTHENTICATE_PARAMS.length", "AUTHENTICATE_PARAMS.accessPassword",
                  "new[] 0",
                  "ANTENNA_INFO.length", "ACCESS_FILTER.structInfo", "C RFID_Authenticate", "delete[] 2",
                  "C RFID_DeallocateTag", "delete 40", "delete[] 1", "delete[] 1", "delete[] 0", "delete 56"}),
      Row("RFID_Untraceable").keeps("[1 [1"), Row("RFID_ReadBuffer").keeps("[1 [1").readsNull(9),
      Row("RFID_Crypto").keeps("[1 [1"), Row("RFID_InitializeAccessSequence"),
      Row("RFID_AddOperationToAccessSequence").keeps("48")
          .order({"GetIntArrayElements", "new 48", "C RFID_AddOperationToAccessSequence", "ReleaseIntArrayElements"}),
      Row("RFID_DeleteOperationFromAccessSequence"),
      Row("RFID_PerformAccessSequence").keeps("[1 [1 256")
          .order({"ACCESS_FILTER.structInfo", "ANTENNA_INFO.length", "TRIGGER_INFO.", "new 256",
                  "TRIGGER_INFO.extraTriggers",
                  "C RFID_PerformAccessSequence", "delete 40", "delete[] 1", "delete[] 1"}),
      Row("RFID_StopAccessSequence"), Row("RFID_GetLastAccessResult"), Row("RFID_DeinitializeAccessSequence"),
      Row("RFID_GetReaderCaps").writesAnyway(8), Row("RFID_SetAntennaConfig"), Row("RFID_GetAntennaConfig"),
      Row("RFID_GetAntennaRfConfig"), Row("RFID_SetAntennaRfConfig").keeps("320"),
      Row("RFID_SetCableLossCompensation"), Row("RFID_GetCableLossCompensation"),
      Row("RFID_GetPhysicalAntennaProperties"), Row("RFID_SetAntennaMode"), Row("RFID_GetAntennaMode"),
      Row("RFID_GetReadPointStatus"), Row("RFID_EnableReadPoint"), Row("RFID_SetRFMode"), Row("RFID_GetRFMode"),
      Row("RFID_SetDutyCycle"), Row("RFID_GetDutyCycle"), Row("RFID_SetRadioPowerState"),
      Row("RFID_GetRadioPowerState"), Row("RFID_TurnOffRadioWhenIdle"), Row("RFID_GetRadioIdleTimeout"),
      Row("RFID_GetPowerNegotiationStatus"), Row("RFID_SetPowerNegotiationState"),
      Row("RFID_GetPowerNegotiationState"), Row("RFID_GetUSBOperationMode"), Row("RFID_SetUSBOperationMode"),
      Row("RFID_EnableGPIPort"), Row("RFID_GetGPIState"), Row("RFID_SetGPOState"), Row("RFID_GetGPOState"),
      Row("RFID_SetGPIDebounceTime").keepsPins(1),
      Row("RFID_GetGPIDebounceTime")
          .order({"GetIntArrayElements [I#1", "GetIntArrayElements [I#2", "C RFID_GetGPIDebounceTime",
                  "ReleaseIntArrayElements [I#1", "ReleaseIntArrayElements [I#2"}),
      Row("RFID_SetUserLED"), Row("RFID_GetSystemInfo"), Row("RFID_GetReaderInfo"),
      Row("RFID_SetReaderInfo").keepsChars(4), Row("RFID_GetLocalTime"), Row("RFID_SetLocalTime"),
      Row("RFID_GetTimeZoneList"), Row("RFID_SetTimeZone"), Row("RFID_GetReaderStats"), Row("RFID_ClearReaderStats"),
      Row("RFID_GetHealthStatus")
          .order({"GetShortArrayElements", "GetIntArrayElements", "ReleaseIntArrayElements", "C RFID_GetHealthStatus",
                  "ReleaseShortArrayElements"}),
      Row("RFID_GetProfileList"), Row("RFID_ImportProfileFromReader"), Row("RFID_ExportProfileToReader"),
      Row("RFID_DeleteProfile"), Row("RFID_SetActiveProfile"), Row("RFID_UpdateSoftware").keepsChars(3),
      Row("RFID_GetUpdateStatus"), Row("RFID_UpdateRadioConfig"), Row("RFID_UpdateRadioFirmware"),
      Row("RFID_InstallUserApp"), Row("RFID_UninstallUserApp"), Row("RFID_StartUserApp"), Row("RFID_StopUserApp"),
      Row("RFID_SetAutoStartUserApp"), Row("RFID_ListUserApps"), Row("RFID_GetCurrentUserAppRunStatus"),
      Row("RFID_NumInstalledApps").noStatus(), Row("RFID_SaveLlrpConfig"), Row("RFID_GetSaveLlrpConfigStatus"),
      Row("RFID_ResetConfigToFactoryDefaults"),
  };
  return rows;
}

}  // namespace jt
