package com.kovra.rfid.orla;

/** Gen2 inventoried flag state to singulate; ordinal = C value. */
public enum INVENTORY_STATE {
    INVENTORY_STATE_A, // 0
    INVENTORY_STATE_B, // 1
    INVENTORY_STATE_AB_FLIP; // 2
}
