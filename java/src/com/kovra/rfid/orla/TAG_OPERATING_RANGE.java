package com.kovra.rfid.orla;

/** Gen2v2 untraceable: operating range of the tag; ordinal = C value. */
public enum TAG_OPERATING_RANGE {
    /** Reader value 0. */
    TAG_OPERATING_RANGE_NORMAL,
    /** Reader value 1. */
    TAG_OPERATING_RANGE_TOGGLE,
    /** Reader value 2. */
    TAG_OPERATING_RANGE_REDUCED;
}
