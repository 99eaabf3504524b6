package com.kovra.rfid.orla;

/** Gen2v2 untraceable: operating range of the tag; ordinal = C value. */
public enum TAG_OPERATING_RANGE {
    TAG_OPERATING_RANGE_NORMAL, // 0
    TAG_OPERATING_RANGE_TOGGLE, // 1
    TAG_OPERATING_RANGE_REDUCED; // 2
}
