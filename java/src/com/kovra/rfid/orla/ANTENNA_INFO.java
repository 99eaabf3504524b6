package com.kovra.rfid.orla;

/**
 * Antenna selection of an operation: length antenna IDs and, optionally, one operation qualifier per antenna.
 */
public class ANTENNA_INFO {
    /** Number of entries used in antennaList (and antennaOpList). */
    public int length;
    /** Antenna IDs; must hold at least length entries (never null). */
    public short[] antennaList = new short[0];
    /** Optional; null when no qualifiers are given. */
    public OPERATION_QUALIFIER[] antennaOpList;

    public ANTENNA_INFO() {
    }

    public ANTENNA_INFO(short[] antennaList) {
        this.antennaList = antennaList;
        this.length = antennaList.length;
    }

    public ANTENNA_INFO(short[] antennaList, OPERATION_QUALIFIER[] antennaOpList) {
        this(antennaList);
        this.antennaOpList = antennaOpList;
    }
}
