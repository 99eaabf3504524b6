package com.kovra.rfid.orla;

/** What an antenna of an antenna selection is used for; ordinal = C value. */
public enum OPERATION_QUALIFIER {
    C1G2_OPERATION, // 0
    NXP_EAS_SCAN, // 1
    LOCATE_TAG; // 2
}
