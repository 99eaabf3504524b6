package com.kovra.rfid.orla;

/** Fixed frequencies of the reader; freqList must hold at least numFreq entries. */
public class FIXED_FREQ_INFO {
    /** Number of entries of freqList that the reader filled. */
    public short numFreq;
    public int[] freqList = new int[0];

    public FIXED_FREQ_INFO() {
    }

    public FIXED_FREQ_INFO(int maxFreq) {
        freqList = new int[maxFreq];
    }
}
