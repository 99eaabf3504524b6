package com.kovra.rfid.orla;

/** Impinj QT control word. */
public class IMPINJ_QT_DATA {
    public short qtControlData;
}
