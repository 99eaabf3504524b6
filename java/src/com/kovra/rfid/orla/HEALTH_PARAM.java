package com.kovra.rfid.orla;

/** What RFID_GetHealthStatus queries (enum name chosen by this SDK); ordinal = C value. */
public enum HEALTH_PARAM {
    HEALTH_PARAM_RADIO, // 0
    HEALTH_PARAM_ANTENNA, // 1
    HEALTH_PARAM_TEMPERATURE, // 2
    HEALTH_PARAM_DATABASE, // 3
    HEALTH_PARAM_POWER_SUPPLY; // 4
}
