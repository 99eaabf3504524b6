package com.kovra.rfid.orla;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertNotEquals;
import static org.junit.jupiter.api.Assertions.assertNull;

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
    private static final byte[] PATTERN = {0x11, 0x22, 0x33, 0x44};
    private static final byte[] MASK = {(byte) 0xF1, (byte) 0xF2, (byte) 0xF3, (byte) 0xF4};

    private static TAG_PATTERN pattern(MEMORY_BANK bank, int bitOffset, int patternBits, int maskBits) {
        TAG_PATTERN p = new TAG_PATTERN();
        p.memoryBank = bank;
        p.bitOffset = (short) bitOffset;
        p.tagPattern = Arrays.copyOf(PATTERN, 8192);
        p.tagPatternBitCount = (short) patternBits;
        p.tagMask = Arrays.copyOf(MASK, 8192);
        p.tagMaskBitCount = (short) maskBits;
        return p;
    }

    private static Call inventory(POST_FILTER filter, ANTENNA_INFO antennas) {
        ORLANatives.RFID_PerformInventory(NO_READER, filter, antennas, null);
        return Call.last("RFID_PerformInventory");
    }

    @Test
    void filterAndPatternFieldsSitAtTheirOffsets() {
        POST_FILTER filter = new POST_FILTER();
        filter.structInfo.memoryAllocated = 0x1122_3344;
        filter.structInfo.memoryUsed = -1;
        filter.tagPatternA = pattern(MEMORY_BANK.MEMORY_BANK_TID, 0x8020, 12, 0);
        filter.matchPattern = FILTER_MATCH_PATTERN.NOTA;

        Call call = inventory(filter, null);
        byte[] record = call.blob("postFilter");
        assertEquals(40, record.length);
        assertArrayEquals(new long[] {0x1122_3344L, 0xFFFF_FFFFL, 0, 5, 0}, fields(record, 0, 4, 4, 4, 16, 8, 24, 4, 32, 8),
                "struct info, no pattern B, match pattern, no RSSI range");
        assertArrayEquals(new long[] {2, 0x8020, 12, 0, 0}, fields(call.blob("postFilter.tagPatternA"),
                0, 4, 4, 2, 16, 2, 24, 8, 32, 2), "bank, offset, pattern bits, no mask");
        assertArrayEquals(new byte[] {0x11, 0x22}, call.blob("postFilter.tagPatternA.tagPattern"));
        assertNull(call.blob("postFilter.tagPatternA.tagMask"));
    }

    @ParameterizedTest
    @CsvSource({"1, 1", "16, 2", "17, 3", "32, 4", "65535, 8192"})
    void bitCountsRoundUpToWholeBytes(int bits, int bytes) {
        POST_FILTER filter = new POST_FILTER();
        filter.tagPatternB = pattern(MEMORY_BANK.MEMORY_BANK_USER, 0, bits, bits);
        Call call = inventory(filter, null);
        assertArrayEquals(new long[] {3, bits, bits}, fields(call.blob("postFilter.tagPatternB"), 0, 4, 16, 2, 32, 2),
                "bit counts unsigned");
        assertArrayEquals(Arrays.copyOf(PATTERN, bytes), call.blob("postFilter.tagPatternB.tagPattern"));
        assertArrayEquals(Arrays.copyOf(MASK, bytes), call.blob("postFilter.tagPatternB.tagMask"));
    }

    @Test
    void rssiRangeKeepsTheLowByteOfEachLimit() {
        POST_FILTER filter = new POST_FILTER();
        filter.rssiRangeFilter = new RSSI_RANGE_FILTER();
        filter.rssiRangeFilter.peakRSSILowerLimit = -70;
        filter.rssiRangeFilter.peakRSSIUpperLimit = 200;
        filter.rssiRangeFilter.matchRange = MATCH_RANGE.OUTSIDE_RANGE;
        Call call = inventory(filter, null);
        assertArrayEquals(new long[] {0xBA, 0xC8, 1}, fields(call.blob("postFilter.rssiRangeFilter"), 0, 1, 1, 1, 4, 4));
        assertArrayEquals(new long[] {0, 0}, fields(call.blob("postFilter"), 8, 8, 16, 8), "no patterns");
    }

    @Test
    void antennaSelectionCopiesLengthEntriesOfBothLists() {
        ANTENNA_INFO antennas = new ANTENNA_INFO(new short[] {1, 2, (short) 0x8004, 9, 9},
                new OPERATION_QUALIFIER[] {OPERATION_QUALIFIER.LOCATE_TAG, OPERATION_QUALIFIER.NXP_EAS_SCAN,
                    OPERATION_QUALIFIER.C1G2_OPERATION, OPERATION_QUALIFIER.LOCATE_TAG});
        antennas.length = 3;
        Call call = inventory(null, antennas);
        assertArrayEquals(new long[] {0, 24, 3}, new long[] {call.arg(1), call.blob("antennaInfo").length,
            fields(call.blob("antennaInfo"), 8, 4)[0]}, "no post filter, 24 bytes, length");
        assertArrayEquals(new long[] {1, 2, 0x8004}, fields(call.blob("antennaInfo.antennaList"), 0, 2, 2, 2, 4, 2));
        assertArrayEquals(new long[] {2, 1, 0}, fields(call.blob("antennaInfo.antennaOpList"), 0, 4, 4, 4, 8, 4));
    }

    @Test
    void qualifierListIsNullOnlyWhenJavaHasNone() {
        byte[] without = inventory(null, new ANTENNA_INFO(new short[] {4})).blob("antennaInfo");
        assertArrayEquals(new long[] {1, 0}, fields(without, 8, 4, 16, 8));

        Call call = inventory(null, new ANTENNA_INFO(new short[0], new OPERATION_QUALIFIER[0]));
        assertNotEquals(0L, fields(call.blob("antennaInfo"), 16, 8)[0], "length 0 keeps the caller's list");
        assertArrayEquals(new byte[0], call.blob("antennaInfo.antennaList"));

        ANTENNA_INFO negative = new ANTENNA_INFO(new short[] {4});
        negative.length = -1;
        assertArrayEquals(new long[] {0xFFFF_FFFFL, 0}, fields(inventory(null, negative).blob("antennaInfo"), 8, 4, 16, 8),
                "a negative length is passed on as it stands and copies no antenna");
    }
}
