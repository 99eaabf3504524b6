package com.kovra.rfid.orla;

/** Parameters of a Gen2v2 read buffer (class name chosen by this SDK). */
public class READ_BUFFER_PARAMS {
    public short wordPtr;
    public short bitCount;
    /** Only the low 32 bits are sent. */
    public long accessPassword;
}
