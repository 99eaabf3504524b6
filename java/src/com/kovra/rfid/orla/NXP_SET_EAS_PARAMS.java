package com.kovra.rfid.orla;

/** Parameters of an NXP set EAS. */
public class NXP_SET_EAS_PARAMS {
    /** Only the low 32 bits are sent. */
    public long accessPassword;
    /** true sets the tag's EAS bit, false clears it. */
    public boolean EASState;
}
