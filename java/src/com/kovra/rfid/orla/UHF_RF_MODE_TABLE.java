package com.kovra.rfid.orla;

/** RF modes of one air protocol; tablesEntries must hold enough constructed entries. */
public class UHF_RF_MODE_TABLE {
    public short protocolID;
    /** Number of entries of this table; every table is filled up to the first table's count. */
    public short numEntries;
    public RF_MODE_TABLE_ENTRY[] tablesEntries = new RF_MODE_TABLE_ENTRY[0];

    public UHF_RF_MODE_TABLE() {
    }

    public UHF_RF_MODE_TABLE(int maxEntries) {
        tablesEntries = new RF_MODE_TABLE_ENTRY[maxEntries];
        for (int i = 0; i < maxEntries; i++) {
            tablesEntries[i] = new RF_MODE_TABLE_ENTRY();
        }
    }
}
