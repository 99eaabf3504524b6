package com.kovra.rfid.orla;

/**
 * RF configuration of one antenna (class name chosen by this SDK). Indices and ports are 16-bit values,
 * rfModeTableIndex and tari 32-bit ones.
 */
public class ANTENNA_RF_CONFIG {
    public int transmitPowerIndex;
    public int receiveSensitivityIndex;
    public int transmitFrequencyIndex;
    public long rfModeTableIndex;
    public long tari;
    public int transmitPort;
    public int receivePort;
    public ANTENNA_STOP_TRIGGER antennaStopTrigger = new ANTENNA_STOP_TRIGGER();
}
