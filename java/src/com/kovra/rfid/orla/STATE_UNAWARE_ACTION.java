package com.kovra.rfid.orla;

/** Select action on matching / non-matching tags, in Gen2 order; ordinal = C value. */
public enum STATE_UNAWARE_ACTION {
    STATE_UNAWARE_ACTION_SELECT_NOT_UNSELECT, // 0: select / unselect
    STATE_UNAWARE_ACTION_SELECT, // 1: select / -
    STATE_UNAWARE_ACTION_NOT_UNSELECT, // 2: - / unselect
    STATE_UNAWARE_ACTION_UNSELECT, // 3: unselect / -
    STATE_UNAWARE_ACTION_UNSELECT_NOT_SELECT, // 4: unselect / select
    STATE_UNAWARE_ACTION_NOT_SELECT; // 5: - / select
}
