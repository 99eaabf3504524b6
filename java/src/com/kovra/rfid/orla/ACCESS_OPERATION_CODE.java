package com.kovra.rfid.orla;

/**
 * Access operation codes; ordinal = C value. 11 to 19 and 23 to 26 carry no parameter record in an access
 * sequence.
 */
public enum ACCESS_OPERATION_CODE {
    /** Reader value 0. */
    ACCESS_OPERATION_READ,
    /** Reader value 1. */
    ACCESS_OPERATION_WRITE,
    /** Reader value 2. */
    ACCESS_OPERATION_LOCK,
    /** Reader value 3. */
    ACCESS_OPERATION_KILL,
    /** Reader value 4. */
    ACCESS_OPERATION_BLOCK_WRITE,
    /** Reader value 5. */
    ACCESS_OPERATION_BLOCK_ERASE,
    /** Reader value 6. */
    ACCESS_OPERATION_RECOMMISSION,
    /** Reader value 7. */
    ACCESS_OPERATION_BLOCK_PERMALOCK,
    /** Reader value 8. */
    ACCESS_OPERATION_NXP_SET_EAS,
    /** Reader value 9. */
    ACCESS_OPERATION_NXP_READ_PROTECT,
    /** Reader value 10. */
    ACCESS_OPERATION_NXP_RESET_READ_PROTECT,
    /** Reader value 11. */
    ACCESS_OPERATION_NXP_EAS_ALARM,
    /** Reader value 12. */
    ACCESS_OPERATION_NXP_CALIBRATE,
    /** Reader value 13: reserved by the reader API. */
    ACCESS_OPERATION_RESERVED_13,
    /** Reader value 14. */
    ACCESS_OPERATION_RESERVED_14,
    /** Reader value 15. */
    ACCESS_OPERATION_RESERVED_15,
    /** Reader value 16. */
    ACCESS_OPERATION_RESERVED_16,
    /** Reader value 17. */
    ACCESS_OPERATION_RESERVED_17,
    /** Reader value 18. */
    ACCESS_OPERATION_RESERVED_18,
    /** Reader value 19. */
    ACCESS_OPERATION_RESERVED_19,
    /** Reader value 20. */
    ACCESS_OPERATION_IMPINJ_QT_WRITE,
    /** Reader value 21: result in qtData. */
    ACCESS_OPERATION_IMPINJ_QT_READ,
    /** Reader value 22: result in nxpChangeConfigWordResult. */
    ACCESS_OPERATION_NXP_CHANGE_CONFIG,
    /** Reader value 23: result in authenticateReadBufferResult. */
    ACCESS_OPERATION_AUTHENTICATE,
    /** Reader value 24: result in authenticateReadBufferResult. */
    ACCESS_OPERATION_READ_BUFFER,
    /** Reader value 25. */
    ACCESS_OPERATION_UNTRACEABLE,
    /** Reader value 26: result in authenticateReadBufferResult. */
    ACCESS_OPERATION_CRYPTO;
}
