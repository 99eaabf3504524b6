package com.kovra.rfid.orla;

/** Gen2 Select target: an inventoried flag or SL; ordinal = C value. */
public enum TARGET {
    TARGET_INVENTORIED_STATE_S0, // 0
    TARGET_INVENTORIED_STATE_S1, // 1
    TARGET_INVENTORIED_STATE_S2, // 2
    TARGET_INVENTORIED_STATE_S3, // 3
    TARGET_SL; // 4
}
