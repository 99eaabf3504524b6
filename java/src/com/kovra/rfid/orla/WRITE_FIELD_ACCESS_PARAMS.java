package com.kovra.rfid.orla;

/**
 * Parameters of the writes of the access password, kill password or tag ID (class name chosen by this SDK).
 */
public class WRITE_FIELD_ACCESS_PARAMS {
    /** Only the low 32 bits are sent. */
    public long accessPassword;
    /** The new value; must hold at least writeDataLength bytes. */
    public byte[] writeData = new byte[0];
    /** Length of the new value in bytes. */
    public short writeDataLength;
}
