package com.kovra.rfid.orla;

/** Stop trigger of an operation. */
public class STOP_TRIGGER {
    public STOP_TRIGGER_TYPE type = STOP_TRIGGER_TYPE.STOP_TRIGGER_TYPE_IMMEDIATE;
    public STOP_TRIGGER_VALUE value = new STOP_TRIGGER_VALUE();
}
