package com.kovra.rfid.orla;

/** Transmit power levels the reader offers; the list must hold at least numValues entries. */
public class TRANSMIT_POWER_LEVEL_TABLE {
    /** Number of entries of powerValueList that the reader filled. */
    public short numValues;
    public short[] powerValueList = new short[0];

    public TRANSMIT_POWER_LEVEL_TABLE() {
    }

    public TRANSMIT_POWER_LEVEL_TABLE(int maxValues) {
        powerValueList = new short[maxValues];
    }
}
