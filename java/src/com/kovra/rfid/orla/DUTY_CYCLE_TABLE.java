package com.kovra.rfid.orla;

/** Duty cycles the reader offers; the list must hold at least numValues entries. */
public class DUTY_CYCLE_TABLE {
    /** Number of entries of dutyCycleValueList that the reader filled. */
    public short numValues;
    public short[] dutyCycleValueList = new short[0];

    public DUTY_CYCLE_TABLE() {
    }

    public DUTY_CYCLE_TABLE(int maxValues) {
        dutyCycleValueList = new short[maxValues];
    }
}
