package com.kovra.rfid.orla;

/** What RFID_GetHealthStatus queries (enum name chosen by this SDK); ordinal = C value. */
public enum HEALTH_PARAM {
    /** Reader value 0. */
    HEALTH_PARAM_RADIO,
    /** Reader value 1. */
    HEALTH_PARAM_ANTENNA,
    /** Reader value 2. */
    HEALTH_PARAM_TEMPERATURE,
    /** Reader value 3. */
    HEALTH_PARAM_DATABASE,
    /** Reader value 4. */
    HEALTH_PARAM_POWER_SUPPLY;
}
