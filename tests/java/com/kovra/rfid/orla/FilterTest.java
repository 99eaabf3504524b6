package com.kovra.rfid.orla;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertNotEquals;
import static org.junit.jupiter.api.Assertions.assertNull;

import com.kovra.rfid.orla.sim.Bytes;
import com.kovra.rfid.orla.sim.Call;
import java.util.Arrays;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.CsvSource;

/**
 * Post filters, tag patterns and antenna selections as the inventory hands
 * them to the reader: the 40-byte filter and pattern records and the 24-byte
 * antenna record, read at the reader's offsets from the simulator's copies.
 */
class FilterTest extends NativeTest {

    /** No such reader: the simulator records the call and starts nothing. */
    private static final int NO_READER = 77;
    private static final byte[] PATTERN_BYTES = {0x11, 0x22, 0x33, 0x44};
    private static final byte[] MASK_BYTES = {(byte) 0xF1, (byte) 0xF2, (byte) 0xF3, (byte) 0xF4};

    private static TAG_PATTERN pattern(MEMORY_BANK bank, int bitOffset, int patternBits, int maskBits) {
        TAG_PATTERN p = new TAG_PATTERN();
        p.memoryBank = bank;
        p.bitOffset = (short) bitOffset;
        p.tagPattern = PATTERN_BYTES.clone();
        p.tagPatternBitCount = (short) patternBits;
        p.tagMask = MASK_BYTES.clone();
        p.tagMaskBitCount = (short) maskBits;
        return p;
    }

    private static Call inventory(POST_FILTER filter, ANTENNA_INFO antennas) {
        ORLANatives.RFID_PerformInventory(NO_READER, filter, antennas, null);
        return Call.last("RFID_PerformInventory");
    }

    @Test
    void postFilterAndPatternFieldsSitAtTheirOffsets() {
        POST_FILTER filter = new POST_FILTER();
        filter.structInfo.memoryAllocated = 0x1122_3344;
        filter.structInfo.memoryUsed = -1;
        filter.tagPatternA = pattern(MEMORY_BANK.MEMORY_BANK_TID, 0x8020, 12, 0);
        filter.matchPattern = FILTER_MATCH_PATTERN.NOTA;

        Call call = inventory(filter, null);
        byte[] record = call.blob("postFilter");
        assertEquals(40, record.length);
        assertEquals(0x1122_3344L, Bytes.u32(record, 0));
        assertEquals(0xFFFF_FFFFL, Bytes.u32(record, 4));
        assertNotEquals(0L, Bytes.ptr(record, 8));
        assertEquals(0L, Bytes.ptr(record, 16), "no pattern B");
        assertEquals(5L, Bytes.u32(record, 24));
        assertEquals(0L, Bytes.ptr(record, 32), "no RSSI range");
        assertNull(call.blob("postFilter.tagPatternB"));
        assertNull(call.blob("postFilter.rssiRangeFilter"));

        byte[] a = call.blob("postFilter.tagPatternA");
        assertEquals(2L, Bytes.u32(a, 0));
        assertEquals(0x8020, Bytes.u16(a, 4));
        assertEquals(12, Bytes.u16(a, 16));
        assertEquals(0L, Bytes.ptr(a, 24), "a mask of 0 bits is NULL");
        assertEquals(0, Bytes.u16(a, 32));
        assertArrayEquals(new byte[] {0x11, 0x22}, call.blob("postFilter.tagPatternA.tagPattern"));
        assertNull(call.blob("postFilter.tagPatternA.tagMask"));
    }

    @ParameterizedTest
    @CsvSource({"1, 1", "16, 2", "17, 3", "32, 4"})
    void bitCountsRoundUpToWholeBytes(int bits, int bytes) {
        POST_FILTER filter = new POST_FILTER();
        filter.tagPatternB = pattern(MEMORY_BANK.MEMORY_BANK_USER, 0, bits, bits);

        Call call = inventory(filter, null);
        assertEquals(0L, Bytes.ptr(call.blob("postFilter"), 8), "no pattern A");
        byte[] b = call.blob("postFilter.tagPatternB");
        assertEquals(3L, Bytes.u32(b, 0));
        assertEquals(bits, Bytes.u16(b, 16));
        assertEquals(bits, Bytes.u16(b, 32));
        assertArrayEquals(Arrays.copyOf(PATTERN_BYTES, bytes), call.blob("postFilter.tagPatternB.tagPattern"));
        assertArrayEquals(Arrays.copyOf(MASK_BYTES, bytes), call.blob("postFilter.tagPatternB.tagMask"));
    }

    @Test
    void rssiRangeKeepsTheLowByteOfEachLimit() {
        POST_FILTER filter = new POST_FILTER();
        filter.rssiRangeFilter = new RSSI_RANGE_FILTER();
        filter.rssiRangeFilter.peakRSSILowerLimit = -70;
        filter.rssiRangeFilter.peakRSSIUpperLimit = 200;
        filter.rssiRangeFilter.matchRange = MATCH_RANGE.OUTSIDE_RANGE;

        Call call = inventory(filter, null);
        byte[] range = call.blob("postFilter.rssiRangeFilter");
        assertEquals(0xBA, Bytes.u8(range, 0));
        assertEquals(0xC8, Bytes.u8(range, 1));
        assertEquals(1L, Bytes.u32(range, 4));
        byte[] record = call.blob("postFilter");
        assertEquals(0L, Bytes.ptr(record, 8));
        assertEquals(0L, Bytes.ptr(record, 16));
    }

    @Test
    void antennaSelectionCopiesLengthEntriesOfBothLists() {
        ANTENNA_INFO antennas = new ANTENNA_INFO(new short[] {1, 2, (short) 0x8004, 9, 9},
                new OPERATION_QUALIFIER[] {OPERATION_QUALIFIER.LOCATE_TAG, OPERATION_QUALIFIER.NXP_EAS_SCAN,
                    OPERATION_QUALIFIER.C1G2_OPERATION, OPERATION_QUALIFIER.LOCATE_TAG});
        antennas.length = 3;

        Call call = inventory(null, antennas);
        assertEquals(0L, call.arg(1), "no post filter");
        byte[] record = call.blob("antennaInfo");
        assertEquals(24, record.length);
        assertEquals(3L, Bytes.u32(record, 8));
        byte[] list = call.blob("antennaInfo.antennaList");
        assertArrayEquals(new int[] {1, 2, 0x8004},
                new int[] {Bytes.u16(list, 0), Bytes.u16(list, 2), Bytes.u16(list, 4)});
        byte[] qualifiers = call.blob("antennaInfo.antennaOpList");
        assertArrayEquals(new long[] {2, 1, 0},
                new long[] {Bytes.u32(qualifiers, 0), Bytes.u32(qualifiers, 4), Bytes.u32(qualifiers, 8)});
    }

    @Test
    void qualifierListIsNullOnlyWhenJavaHasNone() {
        ANTENNA_INFO without = new ANTENNA_INFO(new short[] {4});
        assertEquals(0L, Bytes.ptr(inventory(null, without).blob("antennaInfo"), 16));

        ANTENNA_INFO empty = new ANTENNA_INFO(new short[0], new OPERATION_QUALIFIER[0]);
        Call call = inventory(null, empty);
        byte[] record = call.blob("antennaInfo");
        assertEquals(0L, Bytes.u32(record, 8));
        assertNotEquals(0L, Bytes.ptr(record, 16), "length 0 leaves the caller's list in place");
        assertArrayEquals(new byte[0], call.blob("antennaInfo.antennaList"));
    }
}
