package com.kovra.rfid.orla;

/**
 * What a connected reader can do (class name chosen by this SDK). RFID_GetReaderCaps fills the objects and
 * arrays this instance holds and creates none, so they must be at least as large as the counts the reader
 * reports.
 */
public class READER_CAPS {
    /** Room of the value and frequency lists of the no-argument constructor. */
    public static final int DEFAULT_MAX_VALUES = 512;
    /** Number of RF mode and frequency-hop tables of the no-argument constructor. */
    public static final int DEFAULT_MAX_TABLES = 8;
    /** Number of entries of each RF mode table of the no-argument constructor. */
    public static final int DEFAULT_MAX_ENTRIES = 64;

    public READER_ID readerID = new READER_ID();
    public String firmWareVersion;
    public String modelName;
    public short numAntennas;
    public short numGPIs;
    public short numGPOs;
    public boolean utcClockSupported;
    /**
     * Receive sensitivities, which ANTENNA_RF_CONFIG.receiveSensitivityIndex indexes (the field keeps the reader's
     * spelling).
     */
    public RECEIVE_SENSITIVITY_TABLE receiveSensitivtyTable;
    public boolean blockEraseSupported;
    public boolean blockWriteSupported;
    public boolean stateAwareSingulationSupported;
    public boolean recommissionSupported;
    public boolean blockPermalockSupported;
    public boolean writeUMISupported;
    public boolean radioPowerControlSupported;
    /** Most operations an access sequence holds. */
    public short maxNumOperationsInAccessSequence;
    /** Most pre-filters the reader keeps. */
    public short maxNumPreFilters;
    /** RF mode tables, which ANTENNA_RF_CONFIG.rfModeTableIndex indexes. */
    public RF_MODES rfModes;
    public short countryCode;
    /** Regulatory standard, as the reader defines it. */
    public int enumCommunicationStandard;
    /** Transmit power levels, which ANTENNA_RF_CONFIG.transmitPowerIndex indexes. */
    public TRANSMIT_POWER_LEVEL_TABLE transmitPowerLevelTable;
    public boolean hoppingEnabled;
    /** Frequency-hop tables, used when hoppingEnabled. */
    public FREQ_HOP_INFO freqHopInfo;
    /** Fixed frequencies, used when hopping is off. */
    public FIXED_FREQ_INFO fixedFreqInfo;
    public boolean tagEventReportingSupported;
    public boolean rssiFilterSupported;
    public boolean NXPCommandsSupported;
    public boolean tagLocationingSupported;
    /** Duty cycles, which RFID_SetDutyCycle indexes; left as it was when the reader reports none. */
    public DUTY_CYCLE_TABLE dutyCycleTable;
    public boolean tagListFilterSupported;
    public boolean periodicTagReportsSupported;
    public boolean zoneSuppported;
    public boolean antennaRFConfigSupported;
    public boolean tagMovingStationarySupported;
    public boolean quorinTriggerSupported;
    public boolean G2V2CommandSupported;
    public boolean GPSReportingSupported;

    public READER_CAPS() {
        this(DEFAULT_MAX_VALUES, DEFAULT_MAX_TABLES, DEFAULT_MAX_ENTRIES);
    }

    /**
     * @param maxValues  room of every value and frequency list
     * @param maxTables  number of RF mode tables and of frequency-hop tables
     * @param maxEntries number of entries of each RF mode table
     */
    public READER_CAPS(int maxValues, int maxTables, int maxEntries) {
        receiveSensitivtyTable = new RECEIVE_SENSITIVITY_TABLE(maxValues);
        rfModes = new RF_MODES(maxTables, maxEntries);
        transmitPowerLevelTable = new TRANSMIT_POWER_LEVEL_TABLE(maxValues);
        freqHopInfo = new FREQ_HOP_INFO(maxTables, maxValues);
        fixedFreqInfo = new FIXED_FREQ_INFO(maxValues);
        dutyCycleTable = new DUTY_CYCLE_TABLE(maxValues);
    }
}
