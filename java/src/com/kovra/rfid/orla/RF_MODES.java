package com.kovra.rfid.orla;

/** RF mode tables of the reader; uhfTables must hold enough constructed tables. */
public class RF_MODES {
    /** Number of tables of uhfTables that the reader filled. */
    public short numTables;
    public UHF_RF_MODE_TABLE[] uhfTables = new UHF_RF_MODE_TABLE[0];

    public RF_MODES() {
    }

    public RF_MODES(int maxTables, int maxEntries) {
        uhfTables = new UHF_RF_MODE_TABLE[maxTables];
        for (int i = 0; i < maxTables; i++) {
            uhfTables[i] = new UHF_RF_MODE_TABLE(maxEntries);
        }
    }
}
