package com.kovra.rfid.orla;

/**
 * The native entry points of the SDK, implemented by liborlajni.so on top of
 * the reader C API. Every method returns the C API's status code unchanged
 * (0 is success) unless its declaration says otherwise. Reader handles are
 * Java ints; out-parameters are one-element arrays, written only on success
 * except where a method's note says otherwise. This class loads nothing:
 * call {@link OrlaLibrary#load()} first.
 */
public final class ORLANatives {

    static {
        OrlaLibrary.load();
    }

    private ORLANatives() {
    }

    // Connection: open, restore and close a reader session.
    public static native int RFID_Connect(long[] readerHandle, String hostName, int connectionParameter1,
            int connectionParameter2, CONNECTION_INFO connectionInfo);
    public static native int RFID_Reconnect(int readerHandle);
    public static native int RFID_DisConnect(int readerHandle);

    // Login and management session.
    public static native int RFID_Login(long[] readerHandle, LOGIN_INFO loginInfo, READER_TYPE readerType,
            boolean loginFlag);
    public static native int RFID_Logout(int readerHandle);
    public static native int RFID_Restart(int readerHandle);

    // LLRP connection initiated by the reader.
    public static native int RFID_GetLLRPConnectionConfig(int readerHandle, LLRP_CONNECTION_CONFIG config);
    public static native int RFID_SetLLRPConnectionConfig(int readerHandle, LLRP_CONNECTION_CONFIG config);
    public static native int RFID_InitiateLLRPConnectionFromReader(int readerHandle);
    public static native int RFID_DisconnectLLRPConnectionFromReader(int readerHandle);
    public static native int RFID_AcceptConnection(long[] readerHandle, long acceptParameter,
            ACCEPT_CONNECTION_INFO acceptInfo);

    // Event handles (created and waited on in groups as long, used singly as int) and reader events.
    public static native long rfidUtils_CreateEvent(int unused, int manualReset, int initialState);
    public static native int rfidUtils_SetEvent(int eventHandle);
    public static native int rfidUtils_ResetEvent(int eventHandle);
    public static native int rfidUtils_CloseHandle(int eventHandle);
    public static native int rfidUtils_WaitForSingleObject(int eventHandle, int timeoutMilliseconds);
    public static native int rfidUtils_WaitForMultipleObjects(int count, long[] eventHandles, boolean waitAll,
            int timeoutMilliseconds);
    public static native int RFID_RegisterEventNotification(int readerHandle, RFID_EVENT_TYPE eventType,
            int eventHandle);
    public static native int RFID_DeregisterEventNotification(int readerHandle, RFID_EVENT_TYPE eventType);
    public static native int RFID_GetEventData(int readerHandle, RFID_EVENT_TYPE eventType, EVENT_DATA eventData);

    // Errors, version and trace.
    public static native int RFID_GetLastErrorInfo(int readerHandle, ERROR_INFO errorInfo);
    /** Returns the C API's description of a status code; never a status. */
    public static native String RFID_GetErrorDescription(RFID_STATUS status);
    public static native int RFID_GetDllVersionInfo(VERSION_INFO versionInfo);
    public static native int RFID_SetTraceLevel(int readerHandle, int traceLevel);

    // Tag records held by Java and tag retrieval.
    /** Returns the address of a tag record allocated by the C API (0 when none). */
    public static native long RFID_AllocateTag(int readerHandle);
    public static native int RFID_DeallocateTag(int readerHandle, long tagRecord);
    public static native int RFID_GetReadTag(int readerHandle, TAG_DATA tagData, long tagRecord, boolean utcTime);
    /** Returns the status of releasing the batch; the number of tags read goes to tagCount[0]. */
    public static native int rfid_GetReadTags(int readerHandle, int maxCount, TAG_DATA[] tags, int[] tagCount,
            boolean utcTime);

    // Inventory, tag locationing and NXP EAS scan.
    public static native int RFID_PerformInventory(int readerHandle, POST_FILTER postFilter, ANTENNA_INFO antennaInfo,
            TRIGGER_INFO triggerInfo);
    public static native int RFID_StopInventory(int readerHandle);
    public static native int RFID_PurgeTags(int readerHandle);
    public static native int RFID_PerformTagLocationing(int readerHandle, String tagID, int tagIDLength,
            ANTENNA_INFO antennaInfo);
    public static native int RFID_StopTagLocationing(int readerHandle);
    public static native int RFID_PerformNXPEASScan(int readerHandle, ANTENNA_INFO antennaInfo,
            TRIGGER_INFO triggerInfo);
    public static native int RFID_StopNXPEASScan(int readerHandle);

    // Pre-filters.
    public static native int RFID_AddPreFilter(int readerHandle, int antennaID, PRE_FILTER preFilter,
            int[] filterIndex);
    public static native int RFID_DeletePreFilter(int readerHandle, int antennaID, int filterIndex);

    // Tag storage and singulation.
    public static native int RFID_GetTagStorageSettings(int readerHandle, TAG_STORAGE_SETTINGS settings);
    public static native int RFID_SetTagStorageSettings(int readerHandle, TAG_STORAGE_SETTINGS settings);
    public static native int RFID_GetSingulationControl(int readerHandle, int antennaID, SINGULATION_CONTROL control);
    public static native int RFID_SetSingulationControl(int readerHandle, int antennaID, SINGULATION_CONTROL control);

    // Single Gen2 access operations. The two Object arguments of the tag-returning
    // operations are reserved and never read; Object is this SDK's choice of type.
    public static native int RFID_Read(int readerHandle, String tagID, int tagIDLength, READ_ACCESS_PARAMS params,
            ACCESS_FILTER accessFilter, ANTENNA_INFO antennaInfo, TAG_DATA tagData, Object reserved1,
            Object reserved2, boolean utcTime);
    public static native int RFID_Write(int readerHandle, String tagID, int tagIDLength, WRITE_ACCESS_PARAMS params,
            ACCESS_FILTER accessFilter, ANTENNA_INFO antennaInfo);
    public static native int RFID_BlockWrite(int readerHandle, String tagID, int tagIDLength,
            WRITE_ACCESS_PARAMS params, ACCESS_FILTER accessFilter, ANTENNA_INFO antennaInfo);
    public static native int RFID_BlockErase(int readerHandle, String tagID, int tagIDLength,
            BLOCK_ERASE_ACCESS_PARAMS params, ACCESS_FILTER accessFilter, ANTENNA_INFO antennaInfo);
    public static native int RFID_Lock(int readerHandle, String tagID, int tagIDLength, LOCK_ACCESS_PARAMS params,
            ACCESS_FILTER accessFilter, ANTENNA_INFO antennaInfo);
    public static native int RFID_Kill(int readerHandle, String tagID, int tagIDLength, KILL_ACCESS_PARAMS params,
            ACCESS_FILTER accessFilter, ANTENNA_INFO antennaInfo);
    public static native int RFID_BlockPermalock(int readerHandle, String tagID, int tagIDLength,
            BLOCK_PERMALOCK_ACCESS_PARAMS params, ACCESS_FILTER accessFilter, ANTENNA_INFO antennaInfo,
            TAG_DATA tagData, Object reserved1, Object reserved2, boolean utcTime);
    public static native int RFID_Recommission(int readerHandle, String tagID, int tagIDLength,
            RECOMMISSION_ACCESS_PARAMS params, ACCESS_FILTER accessFilter, ANTENNA_INFO antennaInfo);
    public static native int RFID_WriteAccessPassword(int readerHandle, String tagID, int tagIDLength,
            WRITE_FIELD_ACCESS_PARAMS params, ANTENNA_INFO antennaInfo);
    public static native int RFID_WriteKillPassword(int readerHandle, String tagID, int tagIDLength,
            WRITE_FIELD_ACCESS_PARAMS params, ANTENNA_INFO antennaInfo);
    public static native int RFID_WriteTagID(int readerHandle, String tagID, int tagIDLength,
            WRITE_FIELD_ACCESS_PARAMS params, ANTENNA_INFO antennaInfo);

    // NXP and Impinj chip commands.
    public static native int RFID_NXPReadProtect(int readerHandle, String tagID, int tagIDLength,
            NXP_READ_PROTECT_PARAMS params, ACCESS_FILTER accessFilter, ANTENNA_INFO antennaInfo);
    public static native int RFID_NXPResetReadProtect(int readerHandle, NXP_RESET_READ_PROTECT_PARAMS params,
            ANTENNA_INFO antennaInfo);
    public static native int RFID_NXPSetEAS(int readerHandle, String tagID, int tagIDLength, NXP_SET_EAS_PARAMS params,
            ACCESS_FILTER accessFilter, ANTENNA_INFO antennaInfo);
    public static native int RFID_NXPChangeConfig(int readerHandle, String tagID, int tagIDLength,
            NXP_CHANGE_CONFIG_PARAMS params, ACCESS_FILTER accessFilter, ANTENNA_INFO antennaInfo, TAG_DATA tagData,
            Object reserved1, Object reserved2, boolean utcTime);
    public static native int RFID_ImpinjQTWrite(int readerHandle, String tagID, int tagIDLength,
            IMPINJ_QT_WRITE_PARAMS params, ACCESS_FILTER accessFilter, ANTENNA_INFO antennaInfo);
    public static native int RFID_ImpinjQTRead(int readerHandle, String tagID, int tagIDLength,
            IMPINJ_QT_READ_PARAMS params, ACCESS_FILTER accessFilter, ANTENNA_INFO antennaInfo, TAG_DATA tagData,
            Object reserved1, Object reserved2, boolean utcTime);

    // Gen2v2 security commands (the authenticate method keeps its historical spelling).
    public static native int RFID_Athenticate(int readerHandle, String tagID, int tagIDLength,
            AUTHENTICATE_PARAMS params, ACCESS_FILTER accessFilter, ANTENNA_INFO antennaInfo, TAG_DATA tagData,
            Object reserved1, Object reserved2, boolean utcTime);
    public static native int RFID_Untraceable(int readerHandle, String tagID, int tagIDLength,
            UNTRACEABLE_PARAMS params, ACCESS_FILTER accessFilter, ANTENNA_INFO antennaInfo, TAG_DATA tagData,
            Object reserved1, Object reserved2, boolean utcTime);
    public static native int RFID_ReadBuffer(int readerHandle, String tagID, int tagIDLength,
            READ_BUFFER_PARAMS params, ACCESS_FILTER accessFilter, ANTENNA_INFO antennaInfo, TAG_DATA tagData,
            Object reserved1, Object reserved2, boolean utcTime);
    public static native int RFID_Crypto(int readerHandle, String tagID, int tagIDLength, CRYPTO_PARAMS params,
            ACCESS_FILTER accessFilter, ANTENNA_INFO antennaInfo, TAG_DATA tagData, Object reserved1,
            Object reserved2, boolean utcTime);

    // Access sequences.
    public static native int RFID_InitializeAccessSequence(int readerHandle);
    public static native int RFID_AddOperationToAccessSequence(int readerHandle, ACCESS_OPERATION operation,
            int[] operationIndex);
    public static native int RFID_DeleteOperationFromAccessSequence(int readerHandle, int operationIndex);
    public static native int RFID_PerformAccessSequence(int readerHandle, ACCESS_FILTER accessFilter,
            ANTENNA_INFO antennaInfo, TRIGGER_INFO triggerInfo);
    public static native int RFID_StopAccessSequence(int readerHandle);
    public static native int RFID_GetLastAccessResult(int readerHandle, int[] firstCount, int[] secondCount);
    public static native int RFID_DeinitializeAccessSequence(int readerHandle);

    // Reader capabilities.
    public static native int RFID_GetReaderCaps(int readerHandle, READER_CAPS readerCaps);

    // Antenna configuration.
    public static native int RFID_SetAntennaConfig(int readerHandle, short antennaID, short firstIndex,
            short secondIndex, short thirdIndex);
    /** Writes all three out-values whatever the status; ignore them when it is not 0. */
    public static native int RFID_GetAntennaConfig(int readerHandle, short antennaID, short[] firstIndex,
            short[] secondIndex, short[] thirdIndex);
    public static native int RFID_GetAntennaRfConfig(int readerHandle, short antennaID, ANTENNA_RF_CONFIG config);
    public static native int RFID_SetAntennaRfConfig(int readerHandle, short antennaID, ANTENNA_RF_CONFIG config);
    public static native int RFID_SetCableLossCompensation(int readerHandle, short count,
            CABLE_LOSS_COMPENSATION[] compensations);
    public static native int RFID_GetCableLossCompensation(int readerHandle, CABLE_LOSS_COMPENSATION compensation);
    public static native int RFID_GetPhysicalAntennaProperties(int readerHandle, short antennaID,
            boolean[] flag, int[] value);
    public static native int RFID_SetAntennaMode(int readerHandle, ANTENNA_MODE antennaMode);
    public static native int RFID_GetAntennaMode(int readerHandle, int[] antennaMode);
    public static native int RFID_GetReadPointStatus(int readerHandle, short antennaID, boolean[] enabled);
    public static native int RFID_EnableReadPoint(int readerHandle, short antennaID, boolean enable);

    // Radio settings. The three power-negotiation methods are exported by the
    // library only under C++ symbol names, so the VM does not bind them by name.
    public static native int RFID_SetRFMode(int readerHandle, short antennaID, int firstValue, int secondValue);
    public static native int RFID_GetRFMode(int readerHandle, short antennaID, int[] firstValue, int[] secondValue);
    public static native int RFID_SetDutyCycle(int readerHandle, short dutyCycleIndex);
    public static native int RFID_GetDutyCycle(int readerHandle, short[] dutyCycleIndex);
    public static native int RFID_SetRadioPowerState(int readerHandle, boolean radioOn);
    public static native int RFID_GetRadioPowerState(int readerHandle, boolean[] radioOn);
    public static native int RFID_TurnOffRadioWhenIdle(int readerHandle, int idleTimeoutMilliseconds);
    /** Sets idleTimeoutMilliseconds[0] to 0 before the call, so a failed call leaves 0 there. */
    public static native int RFID_GetRadioIdleTimeout(int readerHandle, int[] idleTimeoutMilliseconds);
    public static native int RFID_GetPowerNegotiationStatus(int readerHandle, POWER_NEGOTIATION_STATUS status);
    public static native int RFID_SetPowerNegotiationState(int readerHandle, POWER_NEGOTIATION_STATE state);
    public static native int RFID_GetPowerNegotiationState(int readerHandle, POWER_NEGOTIATION_STATE state);
    public static native int RFID_GetUSBOperationMode(int readerHandle, USB_OPERATION_MODE_SETTINGS settings);
    public static native int RFID_SetUSBOperationMode(int readerHandle, USB_OPERATION_MODE_SETTINGS settings);

    // GPIO and user LED.
    public static native int RFID_EnableGPIPort(int readerHandle, int port, boolean enable);
    public static native int RFID_GetGPIState(int readerHandle, int port, boolean[] state, int[] value);
    public static native int RFID_SetGPOState(int readerHandle, int port, boolean state);
    public static native int RFID_GetGPOState(int readerHandle, int port, boolean[] state);
    public static native int RFID_SetGPIDebounceTime(int readerHandle, int value, int[] debounceRecord);
    public static native int RFID_GetGPIDebounceTime(int readerHandle, int[] value, int[] debounceRecord);
    public static native int RFID_SetUserLED(int readerHandle, LED_INFO ledInfo);

    // Reader information, clock, statistics and health.
    public static native int RFID_GetSystemInfo(int readerHandle, SYSTEM_INFO systemInfo);
    public static native int RFID_GetReaderInfo(int readerHandle, READER_INFO readerInfo);
    public static native int RFID_SetReaderInfo(int readerHandle, READER_INFO readerInfo);
    public static native int RFID_GetLocalTime(int readerHandle, SYSTEMTIME localTime);
    public static native int RFID_SetLocalTime(int readerHandle, SYSTEMTIME localTime);
    public static native int RFID_GetTimeZoneList(int readerHandle, TIME_ZONE_LIST timeZoneList);
    public static native int RFID_SetTimeZone(int readerHandle, short timeZoneIndex);
    public static native int RFID_GetReaderStats(int readerHandle, short antennaID, READER_STATS readerStats);
    public static native int RFID_ClearReaderStats(int readerHandle);
    public static native int RFID_GetHealthStatus(int readerHandle, HEALTH_PARAM healthParam, short[] healthStatus,
            int[] extra);

    // Profiles, updates, user applications and LLRP configuration persistence.
    public static native int RFID_GetProfileList(int readerHandle, PROFILE_LIST profileList);
    public static native int RFID_ImportProfileFromReader(int readerHandle, String firstName, String secondName);
    public static native int RFID_ExportProfileToReader(int readerHandle, String firstName, String secondName,
            boolean flag);
    public static native int RFID_DeleteProfile(int readerHandle, String profileName);
    public static native int RFID_SetActiveProfile(int readerHandle, String profileName);
    public static native int RFID_UpdateSoftware(int readerHandle, UPDATE_INFO updateInfo);
    public static native int RFID_GetUpdateStatus(int readerHandle, UPDATE_STATUS updateStatus);
    public static native int RFID_UpdateRadioConfig(int readerHandle, String fileName);
    public static native int RFID_UpdateRadioFirmware(int readerHandle, String fileName);
    public static native int RFID_InstallUserApp(int readerHandle, String packageName);
    public static native int RFID_UninstallUserApp(int readerHandle, String appName);
    public static native int RFID_StartUserApp(int readerHandle, String appName);
    public static native int RFID_StopUserApp(int readerHandle, String appName);
    public static native int RFID_SetAutoStartUserApp(int readerHandle, String appName, boolean autoStart);
    public static native int RFID_ListUserApps(int readerHandle, USER_APP_INFO[] userApps);
    public static native int RFID_GetCurrentUserAppRunStatus(int readerHandle, String appName,
            USER_APP_RUN_STATUS runStatus);
    /** Returns the number of installed user applications, not a status (0 when the query fails). */
    public static native int RFID_NumInstalledApps(int readerHandle);
    /** The long is forwarded unchanged as the C call's pointer-sized argument; long is this SDK's choice. */
    public static native int RFID_SaveLlrpConfig(int readerHandle, long saveArgument);
    public static native int RFID_GetSaveLlrpConfigStatus(int readerHandle, boolean[] saved);
    public static native int RFID_ResetConfigToFactoryDefaults(int readerHandle);
}
