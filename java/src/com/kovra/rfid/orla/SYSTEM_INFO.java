package com.kovra.rfid.orla;

/** System information of the reader (class name chosen by this SDK). */
public class SYSTEM_INFO {
    /** Must not be null. */
    public STRUCT_INFO structInfo = new STRUCT_INFO();
    public String radioFirmwareVersion;
    public String fPGAVersion;
    /** Time since the reader started, as text. */
    public String upTime;
    public String readerName;
    public String readerLocation;
    public int ramAvailable;
    public int flashAvailable;
    public int ramUsed;
    public int ramTotal;
    public int cpuUsageForUserProcesses;
    public int cpuUsageForSystemProcesses;
    /** Power source, as the reader defines it. */
    public short powersourcetypeEnum;
}
