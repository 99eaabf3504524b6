package com.kovra.rfid.orla;

/** Parameters of a lock: one privilege per lockable Gen2 field, five in all. */
public class LOCK_ACCESS_PARAMS {
    /**
     * One lock privilege per Gen2 lockable field (kill password, access password, EPC, TID, user memory); must hold
     * at least 5 elements.
     */
    public short[] enumPrivilege = new short[5];
    /** Only the low 32 bits are sent. */
    public long accessPassword;
}
