package com.kovra.rfid.orla;

/** Frequency-hop tables of the reader; freqTables must hold enough constructed tables. */
public class FREQ_HOP_INFO {
    /** Number of tables the reader reports; every one receives the reader's first table. */
    public short numTables;
    public FREQ_HOP_TABLE[] freqTables = new FREQ_HOP_TABLE[0];

    public FREQ_HOP_INFO() {
    }

    public FREQ_HOP_INFO(int maxTables, int maxFreq) {
        freqTables = new FREQ_HOP_TABLE[maxTables];
        for (int i = 0; i < maxTables; i++) {
            freqTables[i] = new FREQ_HOP_TABLE(maxFreq);
        }
    }
}
