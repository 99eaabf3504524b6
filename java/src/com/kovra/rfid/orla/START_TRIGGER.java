package com.kovra.rfid.orla;

/** Start trigger of an operation. */
public class START_TRIGGER {
    /** Must not be null. */
    public START_TRIGGER_TYPE type = START_TRIGGER_TYPE.START_TRIGGER_TYPE_IMMEDIATE;
    /** The member that matches type must not be null. */
    public START_TRIGGER_VALUE value = new START_TRIGGER_VALUE();
}
