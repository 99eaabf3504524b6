package com.kovra.rfid.orla;

/** Parameters of a lock: one privilege per lockable Gen2 field, five in all. */
public class LOCK_ACCESS_PARAMS {
    public short[] enumPrivilege = new short[5];
    /** Only the low 32 bits are sent. */
    public long accessPassword;
}
