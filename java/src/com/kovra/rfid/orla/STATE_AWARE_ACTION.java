package com.kovra.rfid.orla;

/** Gen2 Select action on matching / non-matching tags; ordinal = C value. */
public enum STATE_AWARE_ACTION {
    STATE_AWARE_ACTION_INV_A_NOT_INV_B, // 0: A or assert / B or deassert
    STATE_AWARE_ACTION_INV_A, // 1: A or assert / -
    STATE_AWARE_ACTION_NOT_INV_B, // 2: - / B or deassert
    STATE_AWARE_ACTION_INV_A2BB2A, // 3: toggle / -
    STATE_AWARE_ACTION_INV_B_NOT_INV_A, // 4: B or deassert / A or assert
    STATE_AWARE_ACTION_INV_B, // 5: B or deassert / -
    STATE_AWARE_ACTION_NOT_INV_A, // 6: - / A or assert
    STATE_AWARE_ACTION_NOT_INV_A2BB2A; // 7: - / toggle
}
