package com.kovra.rfid.orla;

/** How the reader drives its antenna ports (enum name chosen by this SDK); ordinal = C value. */
public enum ANTENNA_MODE {
    /** Reader value 0. */
    ANTENNA_MODE_MONOSTATIC,
    /** Reader value 1. */
    ANTENNA_MODE_BISTATIC;
}
