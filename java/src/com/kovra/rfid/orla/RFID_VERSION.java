package com.kovra.rfid.orla;

/** Interface version of the reader API a connection or login asks for; ordinal = C value. */
public enum RFID_VERSION {
    /** Reader value 0. */
    RFID_API_VERSION_1,
    /** Reader value 1. */
    RFID_API_VERSION_2,
    /** Reader value 2. */
    RFID_API_VERSION_3,
    /** Reader value 3. */
    RFID_API_VERSION_4,
    /** Reader value 4. */
    RFID_API_VERSION_5;
}
