package com.kovra.rfid.orla;

/**
 * Parameters of the writes of the access password, kill password or tag ID (class name chosen by this SDK).
 */
public class WRITE_FIELD_ACCESS_PARAMS {
    /** Only the low 32 bits are sent. */
    public long accessPassword;
    public byte[] writeData = new byte[0];
    public short writeDataLength;
}
