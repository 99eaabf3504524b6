package com.kovra.rfid.orla;

/** Interface version of the reader API a connection or login asks for; ordinal = C value. */
public enum RFID_VERSION {
    RFID_API_VERSION_1, // 0
    RFID_API_VERSION_2, // 1
    RFID_API_VERSION_3, // 2
    RFID_API_VERSION_4, // 3
    RFID_API_VERSION_5; // 4
}
