package com.kovra.rfid.orla;

/** Stop trigger of an operation. */
public class STOP_TRIGGER {
    /** Must not be null. */
    public STOP_TRIGGER_TYPE type = STOP_TRIGGER_TYPE.STOP_TRIGGER_TYPE_IMMEDIATE;
    /** The member that matches type is sent; a null one sends none. */
    public STOP_TRIGGER_VALUE value = new STOP_TRIGGER_VALUE();
}
