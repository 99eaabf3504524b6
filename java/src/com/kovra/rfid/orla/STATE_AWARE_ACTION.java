package com.kovra.rfid.orla;

/** Gen2 Select action on matching / non-matching tags; ordinal = C value. */
public enum STATE_AWARE_ACTION {
    /** Reader value 0: A or assert / B or deassert. */
    STATE_AWARE_ACTION_INV_A_NOT_INV_B,
    /** Reader value 1: A or assert / -. */
    STATE_AWARE_ACTION_INV_A,
    /** Reader value 2: - / B or deassert. */
    STATE_AWARE_ACTION_NOT_INV_B,
    /** Reader value 3: toggle / -. */
    STATE_AWARE_ACTION_INV_A2BB2A,
    /** Reader value 4: B or deassert / A or assert. */
    STATE_AWARE_ACTION_INV_B_NOT_INV_A,
    /** Reader value 5: B or deassert / -. */
    STATE_AWARE_ACTION_INV_B,
    /** Reader value 6: - / A or assert. */
    STATE_AWARE_ACTION_NOT_INV_A,
    /** Reader value 7: - / toggle. */
    STATE_AWARE_ACTION_NOT_INV_A2BB2A;
}
