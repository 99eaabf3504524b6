package com.kovra.rfid.orla;

/** Receive sensitivities the reader offers; the list must hold at least numValues entries. */
public class RECEIVE_SENSITIVITY_TABLE {
    /** Number of entries of receiveSensitivityValueList that the reader filled. */
    public short numValues;
    public int[] receiveSensitivityValueList = new int[0];

    public RECEIVE_SENSITIVITY_TABLE() {
    }

    public RECEIVE_SENSITIVITY_TABLE(int maxValues) {
        receiveSensitivityValueList = new int[maxValues];
    }
}
