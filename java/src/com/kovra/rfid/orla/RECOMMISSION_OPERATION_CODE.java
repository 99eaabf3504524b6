package com.kovra.rfid.orla;

/** Gen2 recommission choices; ordinal = C value. */
public enum RECOMMISSION_OPERATION_CODE {
    /** Reader value 0. */
    RECOMMISSION_DISABLE_PERMALOCK,
    /** Reader value 1. */
    RECOMMISSION_DISABLE_USER_MEMORY,
    /** Reader value 2. */
    RECOMMISSION_DISABLE_USER_MEMORY_2ND_OPTION,
    /** Reader value 3. */
    RECOMMISSION_DISABLE_PASSWORD,
    /** Reader value 4. */
    RECOMMISSION_DISABLE_PERMALOCK_PASSWORD,
    /** Reader value 5. */
    RECOMMISSION_DISABLE_USER_MEMORY_PASSWORD,
    /** Reader value 6. */
    RECOMMISSION_DISABLE_USER_MEMORY_PASSWORD_2ND_OPTION;
}
