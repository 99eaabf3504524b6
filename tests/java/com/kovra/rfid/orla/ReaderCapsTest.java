package com.kovra.rfid.orla;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertNull;
import static org.junit.jupiter.api.Assertions.assertSame;

import com.kovra.rfid.orla.sim.Bytes;
import com.kovra.rfid.orla.sim.SimControl;
import java.util.Arrays;
import org.junit.jupiter.api.Test;

/**
 * The 3768-byte capabilities record, scripted with tables behind pointers to simulator memory, and what
 * reaches the Java object and the sub-objects and arrays it already holds.
 */
class ReaderCapsTest extends NativeTest {

    private static final String FN = "RFID_GetReaderCapsW";
    private static final int CAPS = 3768;
    private static final int WIDE = 260;
    private static final int ENTRY = 80;
    private static final int TABLE = 16;
    private static final int MARK = 77;

    /** Every boolean of the record, with its offset. */
    private static final String[] FLAGS = {"utcClockSupported", "blockEraseSupported", "blockWriteSupported",
        "stateAwareSingulationSupported", "recommissionSupported", "blockPermalockSupported", "writeUMISupported",
        "radioPowerControlSupported", "hoppingEnabled", "tagEventReportingSupported", "rssiFilterSupported",
        "NXPCommandsSupported", "tagLocationingSupported", "tagListFilterSupported", "periodicTagReportsSupported",
        "zoneSuppported", "antennaRFConfigSupported", "tagMovingStationarySupported", "quorinTriggerSupported",
        "G2V2CommandSupported", "GPSReportingSupported"};
    private static final int[] FLAG_AT = {3138, 3416, 3417, 3418, 3419, 3420, 3421, 3422, 3472, 3512, 3513, 3514,
        3515, 3531, 3544, 3546, 3547, 3548, 3549, 3550, 3551};

    /** Count fields of the five embedded tables. */
    private static final int[] TABLE_COUNT_AT = {3144, 3432, 3456, 3480, 3496};

    /** RF mode entry fields in their order in the record, 4 bytes apart from offset 0. */
    private static final String[] MODE_FIELDS = {"modeIdentifer", "enumDivideRatio", "bdrValue", "enumModulation",
        "enumForwardLinkModulationType", "pieValue", "minTariValue", "maxTariValue", "stepTariValue",
        "enumSpectralMaskIndicator"};

    /**
     * A successful-looking record: every byte not written here is 0xA5 (so a read at a wrong offset or width
     * shows), strings empty, every table empty, every flag 0 and no duty cycle table.
     */
    private static Bytes.Builder record() {
        byte[] junk = new byte[CAPS];
        Arrays.fill(junk, (byte) 0xA5);
        Bytes.Builder b = new Bytes.Builder(CAPS).bytes(0, junk)
                .wide(12, "", WIDE).wide(1052, "", WIDE).wide(2092, "", WIDE).ptr(3520, 0);
        for (int at : TABLE_COUNT_AT) {
            b.u16(at, 0);
        }
        for (int at : FLAG_AT) {
            b.u8(at, 0);
        }
        return b;
    }

    private static long ints(int... values) {
        Bytes.Builder b = new Bytes.Builder(4 * values.length);
        for (int i = 0; i < values.length; i++) {
            b.s32(4 * i, values[i]);
        }
        return SimControl.alloc(b.build());
    }

    private static long shorts(int... values) {
        Bytes.Builder b = new Bytes.Builder(2 * values.length);
        for (int i = 0; i < values.length; i++) {
            b.u16(2 * i, values[i]);
        }
        return SimControl.alloc(b.build());
    }

    private static int[] filled(int n, int value) {
        int[] a = new int[n];
        Arrays.fill(a, value);
        return a;
    }

    private static short[] filledShorts(int n, int value) {
        short[] a = new short[n];
        Arrays.fill(a, (short) value);
        return a;
    }

    private static int getCaps(READER_CAPS caps, byte[] record) {
        SimControl.setOutput(FN, record);
        return ORLANatives.RFID_GetReaderCaps(connect(), caps);
    }

    @Test
    void identityPortsAndScalarsKeepTheirWidthAndSign() {
        READER_CAPS caps = new READER_CAPS(1, 1, 1);
        READER_ID id = caps.readerID;
        byte[] r = record().s32(8, 0x8000_0002).wide(12, "RID-42", WIDE).wide(1052, "3.10.7", WIDE)
                .wide(2092, "Gate 4", WIDE).u16(3132, 0xFFFE).u16(3134, 4).u16(3136, 0x8000).u16(3424, 0x7FFF)
                .u16(3426, 0xFFFF).u16(3448, 0x8348).s32(3452, -16).build();
        assertEquals(0, getCaps(caps, r));

        assertSame(id, caps.readerID);
        assertEquals(0x8000_0002, caps.readerID.enumType);
        assertArrayEquals(new String[] {"RID-42", "3.10.7", "Gate 4"},
                new String[] {caps.readerID.value, caps.firmWareVersion, caps.modelName});
        assertArrayEquals(new short[] {-2, 4, -32768, 32767, -1, (short) 0x8348},
                new short[] {caps.numAntennas, caps.numGPIs, caps.numGPOs, caps.maxNumOperationsInAccessSequence,
                    caps.maxNumPreFilters, caps.countryCode});
        assertEquals(-16, caps.enumCommunicationStandard);
    }

    /**
     * Flag j carries the code j + 1 spread over five calls, one bit a call: a flag read from another flag's
     * byte, or from a byte nobody reads (0xA5), ends with another code. Flag 12 (3515) and flag 17 (3548)
     * differ, so "tagMovingStationarySupported" must end with its own byte. The bit rides in bit 0 of the
     * byte 2 or 3, which the virtual machine keeps of a byte passed as it stands: a flag normalised to 1
     * would read true for both.
     */
    @Test
    void eachFlagComesFromItsOwnByte() throws ReflectiveOperationException {
        int[] codes = new int[FLAGS.length];
        for (int bit = 0; bit < 5; bit++) {
            Bytes.Builder b = record();
            for (int j = 0; j < FLAGS.length; j++) {
                b.u8(FLAG_AT[j], 2 | (j + 1) >> bit & 1);
            }
            READER_CAPS caps = new READER_CAPS(1, 1, 1);
            assertEquals(0, getCaps(caps, b.build()));
            for (int j = 0; j < FLAGS.length; j++) {
                if (READER_CAPS.class.getField(FLAGS[j]).getBoolean(caps)) {
                    codes[j] |= 1 << bit;
                }
            }
        }
        for (int j = 0; j < FLAGS.length; j++) {
            assertEquals(j + 1, codes[j], FLAGS[j]);
        }
    }

    @Test
    void valueTablesFillTheHeldArraysAndSetTheirCounts() {
        READER_CAPS caps = new READER_CAPS(1, 1, 1);
        int[] sensitivities = filled(5, MARK);
        short[] powers = filledShorts(6, MARK);
        int[] fixed = filled(4, MARK);
        short[] duty = filledShorts(5, MARK);
        caps.receiveSensitivtyTable.receiveSensitivityValueList = sensitivities;
        caps.transmitPowerLevelTable.powerValueList = powers;
        caps.fixedFreqInfo.freqList = fixed;
        caps.dutyCycleTable.dutyCycleValueList = duty;

        long dutyTable = SimControl.alloc(new Bytes.Builder(TABLE).u16(0, 3).u16(2, 0xA5A5)
                .s32(4, 0xA5A5A5A5).ptr(8, shorts(100, 0xFFFF, 0x8000)).build());
        byte[] r = record()
                .u16(3144, 3).ptr(3152, ints(-100, Integer.MAX_VALUE, Integer.MIN_VALUE))
                .u16(3456, 4).ptr(3464, shorts(0xFFFF, 300, 0x8000, 7))
                .u16(3496, 2).ptr(3504, ints(865_700, -5))
                .ptr(3520, dutyTable).build();
        assertEquals(0, getCaps(caps, r));

        assertSame(sensitivities, caps.receiveSensitivtyTable.receiveSensitivityValueList);
        assertSame(powers, caps.transmitPowerLevelTable.powerValueList);
        assertSame(fixed, caps.fixedFreqInfo.freqList);
        assertSame(duty, caps.dutyCycleTable.dutyCycleValueList);
        assertArrayEquals(new int[] {-100, Integer.MAX_VALUE, Integer.MIN_VALUE, MARK, MARK}, sensitivities);
        assertArrayEquals(new short[] {-1, 300, -32768, 7, MARK, MARK}, powers);
        assertArrayEquals(new int[] {865_700, -5, MARK, MARK}, fixed);
        assertArrayEquals(new short[] {100, -1, -32768, MARK, MARK}, duty);
        assertArrayEquals(new short[] {3, 4, 2, 3}, new short[] {caps.receiveSensitivtyTable.numValues,
            caps.transmitPowerLevelTable.numValues, caps.fixedFreqInfo.numFreq, caps.dutyCycleTable.numValues});
    }

    /** Field f of entry e of RF mode table t: distinct everywhere, the top bit set in every other field. */
    private static int modeValue(int t, int e, int f) {
        return (f % 2 == 0 ? 0x8000_0000 : 0) | t << 20 | e << 12 | f;
    }

    private static long modeEntries(int t, int n) {
        Bytes.Builder b = new Bytes.Builder(ENTRY * n);
        for (int e = 0; e < n; e++) {
            for (int f = 0; f < MODE_FIELDS.length; f++) {
                b.s32(ENTRY * e + 4 * f, modeValue(t, e, f));
            }
            b.u8(ENTRY * e + 40, 2 | (t + e) % 2);
            b.u8(ENTRY * e + 41, 0xA5);
        }
        return SimControl.alloc(b.build());
    }

    private static void assertModeEntry(int t, int e, RF_MODE_TABLE_ENTRY entry)
            throws ReflectiveOperationException {
        for (int f = 0; f < MODE_FIELDS.length; f++) {
            assertEquals(modeValue(t, e, f), RF_MODE_TABLE_ENTRY.class.getField(MODE_FIELDS[f]).getInt(entry),
                    "table " + t + " entry " + e + " " + MODE_FIELDS[f]);
        }
        assertEquals((t + e) % 2 == 1, entry.epcHAGTCConformance, "table " + t + " entry " + e);
    }

    /**
     * Three tables of 2, 3 and 1 entries (the third with a second entry in memory beyond its count): every
     * table is walked for the first table's 2 entries, each from its own C table.
     */
    @Test
    void rfModeTablesAreWalkedForTheFirstTablesEntryCount() throws ReflectiveOperationException {
        long tables = SimControl.alloc(new Bytes.Builder(3 * TABLE)
                .u16(0, 0x8000).u16(2, 2).ptr(8, modeEntries(0, 2))
                .u16(16, 1).u16(18, 3).ptr(24, modeEntries(1, 3))
                .u16(32, 0xFFFF).u16(34, 1).ptr(40, modeEntries(2, 2)).build());
        READER_CAPS caps = new READER_CAPS(1, 4, 4);
        UHF_RF_MODE_TABLE[] javaTables = caps.rfModes.uhfTables;
        RF_MODE_TABLE_ENTRY[] secondEntries = javaTables[1].tablesEntries;
        for (UHF_RF_MODE_TABLE table : javaTables) {
            table.protocolID = MARK;
            table.numEntries = MARK;
            for (RF_MODE_TABLE_ENTRY entry : table.tablesEntries) {
                entry.modeIdentifer = MARK;
            }
        }
        assertEquals(0, getCaps(caps, record().u16(3432, 3).ptr(3440, tables).build()));

        assertEquals(3, caps.rfModes.numTables);
        assertSame(javaTables, caps.rfModes.uhfTables);
        assertSame(secondEntries, javaTables[1].tablesEntries);
        short[][] protocolAndCount = new short[2][4];
        for (int t = 0; t < 4; t++) {
            protocolAndCount[0][t] = javaTables[t].protocolID;
            protocolAndCount[1][t] = javaTables[t].numEntries;
        }
        assertArrayEquals(new short[] {-32768, 1, -1, MARK}, protocolAndCount[0]);
        assertArrayEquals(new short[] {2, 3, 1, MARK}, protocolAndCount[1], "each table keeps its own count");
        for (int t = 0; t < 3; t++) {
            assertModeEntry(t, 0, javaTables[t].tablesEntries[0]);
            assertModeEntry(t, 1, javaTables[t].tablesEntries[1]);
            assertEquals(MARK, javaTables[t].tablesEntries[2].modeIdentifer, "table " + t + " entry 2");
        }
        assertEquals(MARK, javaTables[3].tablesEntries[0].modeIdentifer);
    }

    /** Three different hop tables in C: every Java table receives the first one. */
    @Test
    void everyFrequencyHopTableReceivesTheFirstOne() {
        long tables = SimControl.alloc(new Bytes.Builder(3 * TABLE)
                .u16(0, 0x8001).u16(2, 2).ptr(8, ints(902_750, -1))
                .u16(16, 5).u16(18, 3).ptr(24, ints(1, 2, 3))
                .u16(32, 6).u16(34, 1).ptr(40, ints(9)).build());
        READER_CAPS caps = new READER_CAPS(1, 4, 1);
        FREQ_HOP_TABLE[] javaTables = caps.freqHopInfo.freqTables;
        int[][] lists = new int[4][];
        for (int i = 0; i < 4; i++) {
            javaTables[i].hopTableID = MARK;
            javaTables[i].numFreq = MARK;
            lists[i] = filled(4, MARK);
            javaTables[i].freqList = lists[i];
        }
        assertEquals(0, getCaps(caps, record().u16(3480, 3).ptr(3488, tables).build()));

        assertEquals(3, caps.freqHopInfo.numTables);
        for (int i = 0; i < 3; i++) {
            assertEquals(-32767, javaTables[i].hopTableID, "table " + i);
            assertEquals(2, javaTables[i].numFreq, "table " + i);
            assertSame(lists[i], javaTables[i].freqList);
            assertArrayEquals(new int[] {902_750, -1, MARK, MARK}, lists[i], "table " + i);
        }
        assertEquals(MARK, javaTables[3].hopTableID);
        assertArrayEquals(filled(4, MARK), lists[3]);
    }

    /** Zero counts set the count fields and leave every list alone; a NULL duty table leaves its object alone. */
    @Test
    void emptyTablesAndMissingDutyCyclesLeaveTheListsUntouched() {
        READER_CAPS caps = new READER_CAPS(3, 2, 1);
        caps.receiveSensitivtyTable.numValues = MARK;
        caps.transmitPowerLevelTable.numValues = MARK;
        caps.rfModes.numTables = MARK;
        caps.freqHopInfo.numTables = MARK;
        caps.fixedFreqInfo.numFreq = MARK;
        caps.dutyCycleTable.numValues = MARK;
        Arrays.fill(caps.receiveSensitivtyTable.receiveSensitivityValueList, MARK);
        Arrays.fill(caps.transmitPowerLevelTable.powerValueList, (short) MARK);
        Arrays.fill(caps.fixedFreqInfo.freqList, MARK);
        Arrays.fill(caps.dutyCycleTable.dutyCycleValueList, (short) MARK);
        caps.rfModes.uhfTables[0].protocolID = MARK;
        caps.freqHopInfo.freqTables[0].hopTableID = MARK;
        assertEquals(0, getCaps(caps, record().build()));

        assertArrayEquals(new short[] {0, 0, 0, 0, 0}, new short[] {caps.receiveSensitivtyTable.numValues,
            caps.transmitPowerLevelTable.numValues, caps.rfModes.numTables, caps.freqHopInfo.numTables,
            caps.fixedFreqInfo.numFreq});
        assertArrayEquals(filled(3, MARK), caps.receiveSensitivtyTable.receiveSensitivityValueList);
        assertArrayEquals(filledShorts(3, MARK), caps.transmitPowerLevelTable.powerValueList);
        assertArrayEquals(filled(3, MARK), caps.fixedFreqInfo.freqList);
        assertEquals(MARK, caps.rfModes.uhfTables[0].protocolID);
        assertEquals(MARK, caps.freqHopInfo.freqTables[0].hopTableID);
        assertEquals(MARK, caps.dutyCycleTable.numValues, "NULL duty cycle table");
        assertArrayEquals(filledShorts(3, MARK), caps.dutyCycleTable.dutyCycleValueList);

        // A hop table without frequencies still gives its identifier and count, not its list.
        long hop = SimControl.alloc(new Bytes.Builder(TABLE).u16(0, 12).u16(2, 0).ptr(8, 0xA5A5A5A5L).build());
        long noDuty = SimControl.alloc(new Bytes.Builder(TABLE).u16(0, 0).ptr(8, 0xA5A5A5A5L).build());
        for (FREQ_HOP_TABLE table : caps.freqHopInfo.freqTables) {
            Arrays.fill(table.freqList, MARK);
        }
        assertEquals(0, getCaps(caps, record().u16(3480, 1).ptr(3488, hop).ptr(3520, noDuty).build()));
        FREQ_HOP_TABLE table = caps.freqHopInfo.freqTables[0];
        assertEquals(12, table.hopTableID);
        assertEquals(0, table.numFreq);
        assertArrayEquals(filled(3, MARK), table.freqList);
        assertEquals(0, caps.dutyCycleTable.numValues);
        assertArrayEquals(filledShorts(3, MARK), caps.dutyCycleTable.dutyCycleValueList);
    }

    /**
     * A failed call (here a status scripted on a sign-extended handle) writes the eight late flags from what
     * the record holds after it, and nothing else, though the simulator filled the whole record.
     */
    @Test
    void failedCallWritesOnlyTheEightLateFlags() {
        long tables = SimControl.alloc(new Bytes.Builder(TABLE).u16(0, 1).u16(2, 1).ptr(8, modeEntries(0, 1))
                .build());
        Bytes.Builder b = record().wide(1052, "9.9", WIDE).wide(12, "X", WIDE).u16(3132, 8).u16(3144, 1)
                .ptr(3152, ints(5)).u16(3432, 1).ptr(3440, tables).u16(3456, 1).ptr(3464, shorts(1));
        for (int at : FLAG_AT) {
            b.u8(at, 1);
        }
        b.u8(3546, 0).u8(3531, 0).u8(3550, 0).u8(3548, 1).u8(3515, 0);
        SimControl.setOutput(FN, b.build());
        SimControl.setStatus(FN, -9);

        READER_CAPS caps = new READER_CAPS(2, 1, 1);
        caps.zoneSuppported = true;
        caps.tagListFilterSupported = true;
        caps.G2V2CommandSupported = true;
        assertEquals(-9, ORLANatives.RFID_GetReaderCaps(-7, caps));
        assertEquals(0xFFFF_FFFF_FFFF_FFF9L, SimControl.args(FN, -1)[0]);

        assertArrayEquals(new boolean[] {true, false, true, true, false, true, false, true}, new boolean[] {
            caps.periodicTagReportsSupported, caps.zoneSuppported, caps.antennaRFConfigSupported,
            caps.tagMovingStationarySupported, caps.tagListFilterSupported, caps.quorinTriggerSupported,
            caps.G2V2CommandSupported, caps.GPSReportingSupported});
        assertNull(caps.firmWareVersion);
        assertNull(caps.readerID.value);
        assertArrayEquals(new boolean[4], new boolean[] {caps.utcClockSupported, caps.blockEraseSupported,
            caps.hoppingEnabled, caps.tagLocationingSupported});
        assertArrayEquals(new short[4], new short[] {caps.numAntennas, caps.receiveSensitivtyTable.numValues,
            caps.rfModes.numTables, caps.transmitPowerLevelTable.numValues});
        assertArrayEquals(new int[2], caps.receiveSensitivtyTable.receiveSensitivityValueList);
        assertEquals(0, caps.rfModes.uhfTables[0].tablesEntries[0].modeIdentifer);
    }
}
