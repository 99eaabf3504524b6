package com.kovra.rfid.orla;

/** One frequency-hop table; freqList must hold at least numFreq entries. */
public class FREQ_HOP_TABLE {
    public short hopTableID;
    /** Number of entries of freqList that the reader filled. */
    public short numFreq;
    public int[] freqList = new int[0];

    public FREQ_HOP_TABLE() {
    }

    public FREQ_HOP_TABLE(int maxFreq) {
        freqList = new int[maxFreq];
    }
}
