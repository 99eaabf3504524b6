package com.kovra.rfid.orla;

/** Gen2 inventoried flag state to singulate; ordinal = C value. */
public enum INVENTORY_STATE {
    /** Reader value 0. */
    INVENTORY_STATE_A,
    /** Reader value 1. */
    INVENTORY_STATE_B,
    /** Reader value 2. */
    INVENTORY_STATE_AB_FLIP;
}
