package com.kovra.rfid.orla;

/** How the reader drives its antenna ports (enum name chosen by this SDK); ordinal = C value. */
public enum ANTENNA_MODE {
    ANTENNA_MODE_MONOSTATIC, // 0
    ANTENNA_MODE_BISTATIC; // 1
}
