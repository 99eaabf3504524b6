package com.kovra.rfid.orla;

/**
 * One tag as the reader reported it: identifier, protocol words, antenna, signal, times and access result.
 */
public class TAG_DATA {
    public STRUCT_INFO structInfo = new STRUCT_INFO();
    /** Tag identifier as upper-case hexadecimal text. */
    public String tagID;
    /** Identifier length in bytes. */
    public int tagIDLength;
    public int tagIDAllocated;
    public int PC;
    public int XPC;
    public int CRC;
    public short antennaID;
    public short peakRSSI;
    public short phaseInfo;
    public short channelIndex;
    public short tagSeenCount;
    /** Memory bank data read or written, as upper-case hexadecimal text. */
    public String memoryBankData;
    public int memoryBankDataByteOffset;
    public int memoryBankDataLength;
    public int memoryBankDataAllocated;
    /** Access operation code (see ACCESS_OPERATION_CODE). */
    public int enumOPCode;
    public int enumOPStatus;
    /** Memory bank (see MEMORY_BANK). */
    public int enumMemoryBank;
    public int enumTagEvent;
    public SEEN_TIME seenTime = new SEEN_TIME();
    public SYSTEMTIME tagEventTimeStamp = new SYSTEMTIME();
    public ACCESS_OPERATION_RESULT AccessOperationResult = new ACCESS_OPERATION_RESULT();
    public GPS_LOCATION gpsLocation = new GPS_LOCATION();
    /** true when location holds data for this tag. */
    public boolean isContainLocationInfo;
    public LOCATION_INFO location = new LOCATION_INFO();

    @Override
    public String toString() {
        return "TAG_DATA[tagID=" + tagID + ", antennaID=" + antennaID + ", peakRSSI=" + peakRSSI
                + ", tagSeenCount=" + tagSeenCount + "]";
    }
}
