package com.kovra.rfid.orla;

/** Status codes of the reader API; ordinal = C value (0 is success). */
public enum RFID_STATUS {
    RFID_API_SUCCESS, // 0: success
    RFID_INVALID_HANDLE, // 1: unknown reader handle
    RFID_API_PARAM_ERROR, // 2: a null or malformed argument
    RFID_NO_READ_TAGS, // 3: the tag buffer is empty
    RFID_OPERATION_IN_PROGRESS, // 4: an inventory, locate or scan already runs
    RFID_NO_OPERATION_RUNNING, // 5: stop without a start
    RFID_NOT_FOUND, // 6: unknown index, tag or event type
    RFID_OUT_OF_MEMORY, // 7: allocation failed
    RFID_MEMORY_OVERRUN, // 8: a range past the end of a tag's memory bank
    RFID_MEMORY_LOCKED, // 9: a permalocked bank, block or password, or protected tag memory
    RFID_PASSWORD_MISMATCH; // 10: a wrong or missing access or kill password
}
