package com.kovra.rfid.orla;

/** How the two tag patterns of a filter combine; ordinal = C value. */
public enum FILTER_MATCH_PATTERN {
    /** Reader value 0. */
    A_AND_B,
    /** Reader value 1. */
    NOTA_AND_B,
    /** Reader value 2. */
    NOTA_AND_NOTB,
    /** Reader value 3. */
    A_AND_NOTB,
    /** Reader value 4. */
    A,
    /** Reader value 5. */
    NOTA;
}
