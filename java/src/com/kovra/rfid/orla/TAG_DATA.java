package com.kovra.rfid.orla;

/**
 * One tag as the reader reported it: identifier, protocol words, antenna, signal, times and access result.
 */
public class TAG_DATA {
    /** Bookkeeping header of the reader's record. */
    public STRUCT_INFO structInfo = new STRUCT_INFO();
    /** Tag identifier as upper-case hexadecimal text. */
    public String tagID;
    /** Identifier length in bytes. */
    public int tagIDLength;
    /** Capacity of the reader's identifier buffer, in bytes. */
    public int tagIDAllocated;
    /** Gen2 protocol-control word. */
    public int PC;
    /** Extended protocol-control word(s). */
    public int XPC;
    /** The tag's CRC word. */
    public int CRC;
    /** Antenna that saw the tag. */
    public short antennaID;
    /** Peak received signal strength in dBm. */
    public short peakRSSI;
    /** Phase, as the reader reports it. */
    public short phaseInfo;
    /** Channel the tag was read on. */
    public short channelIndex;
    /** Times the tag was seen for this report. */
    public short tagSeenCount;
    /** Memory bank data read or written, as upper-case hexadecimal text. */
    public String memoryBankData;
    /** Offset of memoryBankData in its bank, in bytes. */
    public int memoryBankDataByteOffset;
    /** Length of memoryBankData in bytes. */
    public int memoryBankDataLength;
    /** Capacity of the reader's data buffer, in bytes. */
    public int memoryBankDataAllocated;
    /** Access operation code (see ACCESS_OPERATION_CODE). */
    public int enumOPCode;
    /** Status of the access operation, 0 for success. */
    public int enumOPStatus;
    /** Memory bank (see MEMORY_BANK). */
    public int enumMemoryBank;
    /** Tag event (such as appearance or disappearance) this report is for. */
    public int enumTagEvent;
    /** First and last time seen: utcTime or upTime is filled, as the utcTime flag of the call says. */
    public SEEN_TIME seenTime = new SEEN_TIME();
    /** When the tag event occurred. */
    public SYSTEMTIME tagEventTimeStamp = new SYSTEMTIME();
    /** Result of an access operation with operation codes 21 to 26; untouched otherwise. */
    public ACCESS_OPERATION_RESULT AccessOperationResult = new ACCESS_OPERATION_RESULT();
    /** Reader position; filled only when the reader reports one. */
    public GPS_LOCATION gpsLocation = new GPS_LOCATION();
    /** true when location holds data for this tag. */
    public boolean isContainLocationInfo;
    /** Locationing data; valid only when isContainLocationInfo is true. */
    public LOCATION_INFO location = new LOCATION_INFO();

    @Override
    public String toString() {
        return "TAG_DATA[tagID=" + tagID + ", antennaID=" + antennaID + ", peakRSSI=" + peakRSSI
                + ", tagSeenCount=" + tagSeenCount + "]";
    }
}
