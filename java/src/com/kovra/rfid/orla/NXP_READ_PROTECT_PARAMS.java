package com.kovra.rfid.orla;

/** Parameters of an NXP read protect. */
public class NXP_READ_PROTECT_PARAMS {
    /** Only the low 32 bits are sent. */
    public long accessPassword;
}
