package com.kovra.rfid.orla;

/** Impinj QT control word. */
public class IMPINJ_QT_DATA {
    /** The 16 bits of the QT control word. */
    public short qtControlData;
}
