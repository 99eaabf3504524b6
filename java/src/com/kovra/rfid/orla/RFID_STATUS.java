package com.kovra.rfid.orla;

/** Status codes of the reader API; ordinal = C value (0 is success). */
public enum RFID_STATUS {
    /** Reader value 0: success. */
    RFID_API_SUCCESS,
    /** Reader value 1: unknown reader handle. */
    RFID_INVALID_HANDLE,
    /** Reader value 2: a null or malformed argument. */
    RFID_API_PARAM_ERROR,
    /** Reader value 3: the tag buffer is empty. */
    RFID_NO_READ_TAGS,
    /** Reader value 4: an inventory, locate, scan or access sequence already runs. */
    RFID_OPERATION_IN_PROGRESS,
    /** Reader value 5: stop without a start. */
    RFID_NO_OPERATION_RUNNING,
    /** Reader value 6: unknown index, tag or event type. */
    RFID_NOT_FOUND,
    /** Reader value 7: allocation failed. */
    RFID_OUT_OF_MEMORY,
    /** Reader value 8: a range past the end of a tag's memory bank. */
    RFID_MEMORY_OVERRUN,
    /** Reader value 9: a permalocked bank, block or password, or protected tag memory. */
    RFID_MEMORY_LOCKED,
    /** Reader value 10: a wrong or missing access or kill password. */
    RFID_PASSWORD_MISMATCH;
}
