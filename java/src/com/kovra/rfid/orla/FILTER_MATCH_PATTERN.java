package com.kovra.rfid.orla;

/** How the two tag patterns of a filter combine; ordinal = C value. */
public enum FILTER_MATCH_PATTERN {
    A_AND_B, // 0
    NOTA_AND_B, // 1
    NOTA_AND_NOTB, // 2
    A_AND_NOTB, // 3
    A, // 4
    NOTA; // 5
}
