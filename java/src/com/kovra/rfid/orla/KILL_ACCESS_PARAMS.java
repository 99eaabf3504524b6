package com.kovra.rfid.orla;

/** Parameters of a kill. */
public class KILL_ACCESS_PARAMS {
    /** Only the low 32 bits are sent. */
    public long killPassword;
}
