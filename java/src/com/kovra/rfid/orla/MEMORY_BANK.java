package com.kovra.rfid.orla;

/** Gen2 memory banks; ordinal = C value. */
public enum MEMORY_BANK {
    /** Reader value 0. */
    MEMORY_BANK_RESERVED,
    /** Reader value 1. */
    MEMORY_BANK_EPC,
    /** Reader value 2. */
    MEMORY_BANK_TID,
    /** Reader value 3. */
    MEMORY_BANK_USER;
}
