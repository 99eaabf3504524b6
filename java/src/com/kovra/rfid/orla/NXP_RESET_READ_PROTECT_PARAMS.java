package com.kovra.rfid.orla;

/** Parameters of an NXP reset read protect. */
public class NXP_RESET_READ_PROTECT_PARAMS {
    /** Only the low 32 bits are sent. */
    public long accessPassword;
}
