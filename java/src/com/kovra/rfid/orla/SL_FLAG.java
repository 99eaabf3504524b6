package com.kovra.rfid.orla;

/** Gen2 SL flag state to singulate; ordinal = C value. */
public enum SL_FLAG {
    SL_FLAG_ASSERTED, // 0
    SL_FLAG_DEASSERTED, // 1
    SL_ALL; // 2
}
