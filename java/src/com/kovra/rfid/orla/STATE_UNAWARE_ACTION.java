package com.kovra.rfid.orla;

/** Select action on matching / non-matching tags, in Gen2 order; ordinal = C value. */
public enum STATE_UNAWARE_ACTION {
    /** Reader value 0: select / unselect. */
    STATE_UNAWARE_ACTION_SELECT_NOT_UNSELECT,
    /** Reader value 1: select / -. */
    STATE_UNAWARE_ACTION_SELECT,
    /** Reader value 2: - / unselect. */
    STATE_UNAWARE_ACTION_NOT_UNSELECT,
    /** Reader value 3: unselect / -. */
    STATE_UNAWARE_ACTION_UNSELECT,
    /** Reader value 4: unselect / select. */
    STATE_UNAWARE_ACTION_UNSELECT_NOT_SELECT,
    /** Reader value 5: - / select. */
    STATE_UNAWARE_ACTION_NOT_SELECT;
}
