package com.kovra.rfid.orla;

/** What an antenna of an antenna selection is used for; ordinal = C value. */
public enum OPERATION_QUALIFIER {
    /** Reader value 0. */
    C1G2_OPERATION,
    /** Reader value 1. */
    NXP_EAS_SCAN,
    /** Reader value 2. */
    LOCATE_TAG;
}
