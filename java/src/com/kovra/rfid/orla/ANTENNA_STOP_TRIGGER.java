package com.kovra.rfid.orla;

/** Stop trigger of one antenna. Setting reads stopTriggerType; getting writes enumstopTriggerType instead. */
public class ANTENNA_STOP_TRIGGER {
    /** Sent by RFID_SetAntennaRfConfig (must not be null then); a get does not change it. */
    public ANTENNA_STOP_TRIGGER_TYPE stopTriggerType = ANTENNA_STOP_TRIGGER_TYPE.ANTENNA_STOP_TRIGGER_TYPE_NONE;
    /** A 16-bit value. */
    public int stopTriggerValue;
    /** Filled by RFID_GetAntennaRfConfig. */
    public int enumstopTriggerType;
}
