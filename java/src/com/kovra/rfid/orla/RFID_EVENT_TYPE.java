package com.kovra.rfid.orla;

/** Reader event types; ordinal = C value. */
public enum RFID_EVENT_TYPE {
    /** Reader value 0. */
    GPI_EVENT,
    /** Reader value 1. */
    TAG_READ_EVENT,
    /** Reader value 2. */
    BUFFER_FULL_WARNING_EVENT,
    /** Reader value 3. */
    ANTENNA_EVENT,
    /** Reader value 4. */
    INVENTORY_START_EVENT,
    /** Reader value 5. */
    INVENTORY_STOP_EVENT,
    /** Reader value 6. */
    ACCESS_START_EVENT,
    /** Reader value 7. */
    ACCESS_STOP_EVENT,
    /** Reader value 8. */
    DISCONNECTION_EVENT,
    /** Reader value 9. */
    BUFFER_FULL_EVENT,
    /** Reader value 10. */
    NXP_EAS_ALARM_EVENT,
    /** Reader value 11. */
    READER_EXCEPTION_EVENT,
    /** Reader value 12. */
    HANDHELD_TRIGGER_EVENT,
    /** Reader value 13. */
    DEBUG_INFO_EVENT,
    /** Reader value 14. */
    TEMPERATURE_ALARM_EVENT,
    /** Reader value 15. */
    GPS_DATA_EVENT;
}
