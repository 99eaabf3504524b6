package com.kovra.rfid.orla;

/** Gen2v2 untraceable: how much of the TID bank is hidden; ordinal = C value. */
public enum TID_HIDE_STATE {
    HIDE_TID_NONE, // 0
    HIDE_TID_SOME, // 1
    HIDE_TID_ALL; // 2
}
