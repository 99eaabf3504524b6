package com.kovra.rfid.orla;

/** Gen2 memory banks; ordinal = C value. */
public enum MEMORY_BANK {
    MEMORY_BANK_RESERVED, // 0
    MEMORY_BANK_EPC, // 1
    MEMORY_BANK_TID, // 2
    MEMORY_BANK_USER; // 3
}
