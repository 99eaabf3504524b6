package com.kovra.rfid.orla;

/**
 * RF configuration of one antenna (class name chosen by this SDK). Indices and ports are 16-bit values,
 * rfModeTableIndex and tari 32-bit ones.
 */
public class ANTENNA_RF_CONFIG {
    /** Index into READER_CAPS.transmitPowerLevelTable, not a power in dBm. */
    public int transmitPowerIndex;
    /** Index into READER_CAPS.receiveSensitivtyTable. */
    public int receiveSensitivityIndex;
    /** Index into the frequency tables of READER_CAPS. */
    public int transmitFrequencyIndex;
    /** Index of an RF mode of READER_CAPS.rfModes (32-bit). */
    public long rfModeTableIndex;
    /** Tari of the RF mode (32-bit). */
    public long tari;
    /** Transmit port of the antenna. */
    public int transmitPort;
    /** Receive port of the antenna. */
    public int receivePort;
    /** Must not be null. */
    public ANTENNA_STOP_TRIGGER antennaStopTrigger = new ANTENNA_STOP_TRIGGER();
}
