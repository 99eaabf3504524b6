package com.kovra.rfid.orla;

/** Gen2 sessions; ordinal = C value. */
public enum SESSION {
    SESSION_S0, // 0
    SESSION_S1, // 1
    SESSION_S2, // 2
    SESSION_S3; // 3
}
