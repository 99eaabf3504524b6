package com.kovra.rfid.orla;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertNotEquals;

import com.kovra.rfid.orla.sim.Bytes;
import com.kovra.rfid.orla.sim.Call;
import com.kovra.rfid.orla.sim.SimControl;
import java.lang.reflect.Field;
import java.util.Arrays;
import org.junit.jupiter.api.Test;

/** System and reader information, clock and time zones, operation counters and health. */
class ReaderInfoTest extends NativeTest {

    /** Bytes of a text field cleared before its Java string is converted: all that a null string leaves. */
    static final int CLEARED_HEAD_BYTES = 519;

    @Test
    void systemInfoTakesEachFieldFromItsOffsetWithItsSign() {
        int reader = connect();
        SimControl.setOutput("RFID_GetSystemInfoW", new Bytes.Builder(5336)
                .u32(0, 0x8000_0001L).s32(4, 77)
                .wide(8, "radio 3.1", TEXT_CHARS).wide(1048, "fpga 7", TEXT_CHARS)
                .wide(2088, "12 days", TEXT_CHARS).wide(3128, "dock 4", TEXT_CHARS)
                .wide(4168, "hall B", TEXT_CHARS)
                .s32(5208, -5).s32(5212, 0x7FFF_FFFF).s32(5216, 3).u32(5220, 0xFFFF_FFFEL)
                .u8(5224, 200).u8(5225, 0x7F)
                .bytes(5226, new byte[] {9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9,
                    9, 9, 9, 9})
                .u32(5256, 0x0001_FFFEL).build());
        SYSTEM_INFO info = new SYSTEM_INFO();
        STRUCT_INFO structInfo = info.structInfo;
        assertEquals(0, ORLANatives.RFID_GetSystemInfo(reader, info));

        assertEquals(5336, SimControl.blob("RFID_GetSystemInfoW", -1, "info").length);
        assertArrayEquals(new int[] {0x8000_0001, 77}, new int[] {structInfo.memoryAllocated, structInfo.memoryUsed});
        assertArrayEquals(new String[] {"radio 3.1", "fpga 7", "12 days", "dock 4", "hall B"}, new String[] {
            info.radioFirmwareVersion, info.fPGAVersion, info.upTime, info.readerName, info.readerLocation});
        assertArrayEquals(new int[] {-5, 0x7FFF_FFFF, 3, -2, -56, 127}, new int[] {info.ramAvailable,
            info.flashAvailable, info.ramUsed, info.ramTotal, info.cpuUsageForUserProcesses,
            info.cpuUsageForSystemProcesses});
        assertEquals(-2, info.powersourcetypeEnum, "low half of the power source, sign-extended");
    }

    @Test
    void readerInfoGetsItsFourFieldsAndSetSendsThemCutToTheirFields() {
        int reader = connect();
        SimControl.setOutput("RFID_GetReaderInfoW", new Bytes.Builder(4160).wide(0, "north gate", TEXT_CHARS)
                .wide(1040, "portal reader", TEXT_CHARS).wide(2080, "hall B", TEXT_CHARS)
                .wide(3120, "ops desk", TEXT_CHARS).build());
        READER_INFO got = new READER_INFO();
        assertEquals(0, ORLANatives.RFID_GetReaderInfo(reader, got));
        assertArrayEquals(new String[] {"north gate", "portal reader", "hall B", "ops desk"},
                new String[] {got.name, got.description, got.location, got.contact});

        READER_INFO sent = new READER_INFO();
        sent.name = "dock door 4";
        sent.description = null;
        sent.location = "";
        sent.contact = letters(TEXT_CHARS + 30);
        assertEquals(0, ORLANatives.RFID_SetReaderInfo(reader, sent));
        byte[] record = SimControl.blob("RFID_SetReaderInfoW", -1, "info");
        assertEquals(4160, record.length);
        assertEquals("dock door 4", text(record, 0));
        assertEquals(0L, Bytes.u32(record, 4 * "dock door 4".length()), "terminated");
        assertZero(record, 1040, 1040 + CLEARED_HEAD_BYTES);
        assertZero(record, 2080, 2080 + CLEARED_HEAD_BYTES);
        assertEquals(letters(TEXT_CHARS), text(record, 3120), "cut to 260 characters, no terminator");

        SimControl.setStatus("RFID_SetReaderInfoW", FAILED);
        assertEquals(FAILED, ORLANatives.RFID_SetReaderInfo(reader, new READER_INFO()));
    }

    @Test
    void clockMembersTravelBitForBitInTheirOrder() {
        int reader = connect();
        SimControl.setOutput("RFID_GetLocalTime", systemTime(new Bytes.Builder(16), 0, 0x7FFE).build());
        SYSTEMTIME got = new SYSTEMTIME();
        assertEquals(0, ORLANatives.RFID_GetLocalTime(reader, got));
        assertArrayEquals(sequence(0x7FFE), members(got), "0x8000 and above read as negative shorts");

        SYSTEMTIME sent = new SYSTEMTIME();
        sent.Year = -1;
        sent.Month = 2;
        sent.DayOfWeek = 3;
        sent.Day = 4;
        sent.Hour = 5;
        sent.Minute = 6;
        sent.Second = 7;
        sent.Milliseconds = Short.MIN_VALUE;
        ORLANatives.RFID_SetLocalTime(reader, sent);
        assertArrayEquals(new long[] {0xFFFF, 2, 3, 4, 5, 6, 7, 0x8000},
                fields(SimControl.blob("RFID_SetLocalTime", -1, "time"), 0, 2, 2, 2, 4, 2, 6, 2, 8, 2,
                        10, 2, 12, 2, 14, 2));
    }

    @Test
    void timeZoneNamesAreJoinedWithHashes() {
        int reader = connect();
        SimControl.setOutput("RFID_GetTimeZoneListW", nameList(3, names("A", "B", "C"), 0xFFFF));
        TIME_ZONE_LIST zones = new TIME_ZONE_LIST();
        assertEquals(0, ORLANatives.RFID_GetTimeZoneList(reader, zones));
        assertEquals("A#B#C", zones.TimeZoneList);
        assertArrayEquals(new short[] {3, -1}, new short[] {zones.numTimeZones, zones.activeTimeZoneIndex});

        SimControl.setOutput("RFID_GetTimeZoneListW", nameList(4, names("Europe/Berlin", "", "x", letters(900)), 2));
        assertEquals(0, ORLANatives.RFID_GetTimeZoneList(reader, zones));
        assertEquals("Europe/Berlin##x#" + letters(900), zones.TimeZoneList);

        SimControl.setOutput("RFID_GetTimeZoneListW", nameList(0, 0, 0));
        assertEquals(0, ORLANatives.RFID_GetTimeZoneList(reader, zones));
        assertEquals("", zones.TimeZoneList, "no zones: an empty string, not null");
        assertEquals(0, zones.numTimeZones);
    }

    static final String[] COUNTERS = {"identifiedSuccessCount", "identifiedFailureCount", "readSuccessCount",
        "readFailureCount", "writeSuccessCount", "writeFailureCount", "killSuccessCount", "killFailureCount",
        "lockSuccessCount", "lockFailureCount", "blockWriteSuccessCount", "blockWriteFailureCount",
        "blockEraseSuccessCount", "blockEraseFailureCount", "blockPermalockSuccessCount",
        "blockPermalockFailureCount", "nxpChangeEASSuccessCount", "nxpChangeEASFailureCount",
        "nxpEASAlarmSuccessCount", "nxpEASAlarmFailureCount", "nxpReadProtectSuccessCount",
        "nxpReadProtectFailureCount", "nxpResetReadProtectSuccessCount", "nxpResetReadProtectFailureCount",
        "nxpCalibrateSuccessCount", "nxpCalibrateFailureCount", "nxpChangeConfigSuccessCount",
        "nxpChangeConfigFailureCount"};

    @Test
    void statsCountersComeFromTheirOffsetsAndSkipTheUnreadRange() throws ReflectiveOperationException {
        Bytes.Builder record = new Bytes.Builder(192);
        for (int i = 0; i < COUNTERS.length; i++) {
            record.s32(4 * i, 100 + i);
        }
        for (int off = 112; off < 184; off += 4) {
            record.s32(off, 0x5A5A_5A5A);
        }
        record.u32(184, 0xFFFF_FFFFL).u32(188, 0x8000_0000L);
        SimControl.setOutput("RFID_GetReaderStats", record.build());
        SimControl.setStatus("RFID_GetReaderStats", 0);

        READER_STATS stats = new READER_STATS();
        assertEquals(0, ORLANatives.RFID_GetReaderStats(-9, (short) -2, stats));
        assertArrayEquals(new long[] {-9L, 0xFFFE}, Arrays.copyOf(SimControl.args("RFID_GetReaderStats", -1), 2));
        for (int i = 0; i < COUNTERS.length; i++) {
            Field counter = READER_STATS.class.getField(COUNTERS[i]);
            assertEquals(100 + i, counter.getInt(stats), COUNTERS[i]);
        }
        assertEquals(-1, stats.impinjQTSuccessCount, "above 2^31 - 1 reads negative");
        assertEquals(Integer.MIN_VALUE, stats.impinjQTFailureCount);
    }

    @Test
    void healthStatusPassesAnIntArrayAsItsElementPointerOrNull() {
        int reader = connect();
        int[] extra = {11, 12};
        ORLANatives.RFID_GetHealthStatus(reader, HEALTH_PARAM.HEALTH_PARAM_POWER_SUPPLY, new short[1], extra);
        Call call = Call.last("RFID_GetHealthStatus");
        assertEquals(4L, call.arg(1));
        assertNotEquals(0L, call.arg(3), "an int[] passes its element pointer");
        assertArrayEquals(new int[] {11, 12}, extra);
        ORLANatives.RFID_GetHealthStatus(reader, HEALTH_PARAM.HEALTH_PARAM_POWER_SUPPLY, new short[1], null);
        assertEquals(0L, Call.last("RFID_GetHealthStatus").arg(3), "no int[]: a null fourth argument");
    }
}
