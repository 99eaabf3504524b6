package com.kovra.rfid.orla;

/** Gen2 sessions; ordinal = C value. */
public enum SESSION {
    /** Reader value 0. */
    SESSION_S0,
    /** Reader value 1. */
    SESSION_S1,
    /** Reader value 2. */
    SESSION_S2,
    /** Reader value 3. */
    SESSION_S3;
}
