package com.kovra.rfid.orla;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertNotEquals;
import static org.junit.jupiter.api.Assertions.assertNull;

import com.kovra.rfid.orla.sim.Bytes;
import com.kovra.rfid.orla.sim.Call;
import com.kovra.rfid.orla.sim.SimControl;
import java.util.function.IntUnaryOperator;
import org.junit.jupiter.api.Test;

/** Inventory, tag locationing and EAS scan calls: arguments, optional records and statuses. */
class InventoryTest extends NativeTest {

    /** No such reader: the simulator records the call and starts nothing. */
    private static final int NO_READER = 77;
    private static final int INVALID_HANDLE = 1;

    private static ANTENNA_INFO antennas(int count) {
        short[] ids = new short[count];
        for (int i = 0; i < count; i++) {
            ids[i] = (short) (i + 1);
        }
        return new ANTENNA_INFO(ids);
    }

    @Test
    void inventoryWithoutObjectsPassesNullRecords() {
        assertEquals(INVALID_HANDLE, ORLANatives.RFID_PerformInventory(-2, null, null, null));
        assertArrayEquals(new long[] {-2L, 0, 0, 0, 0}, SimControl.args("RFID_PerformInventory", -1));
    }

    @Test
    void inventoryStatusComesBackUnchanged() {
        int handle = TagDataTest.connect();
        SimControl.setStatus("RFID_PerformInventory", 0x7FFF_0000);
        POST_FILTER filter = new POST_FILTER();
        filter.tagPatternA = new TAG_PATTERN();
        filter.rssiRangeFilter = new RSSI_RANGE_FILTER();
        assertEquals(0x7FFF_0000, ORLANatives.RFID_PerformInventory(handle, filter, antennas(12), new TRIGGER_INFO()));
        Call call = Call.last("RFID_PerformInventory");
        assertEquals(handle, call.arg(0));
        assertEquals(12L, Bytes.u32(call.blob("antennaInfo"), 8));
        assertEquals(0L, call.arg(4), "the reserved argument is NULL");
    }

    @Test
    void stopsAndPurgeForwardTheHandleAndTheStatus() {
        String[] functions = {"RFID_StopInventory", "RFID_PurgeTags", "RFID_StopTagLocationing",
            "RFID_StopNXPEASScan"};
        IntUnaryOperator[] natives = {ORLANatives::RFID_StopInventory, ORLANatives::RFID_PurgeTags,
            ORLANatives::RFID_StopTagLocationing, ORLANatives::RFID_StopNXPEASScan};
        for (int i = 0; i < functions.length; i++) {
            SimControl.setStatus(functions[i], -40 - i);
            assertEquals(-40 - i, natives[i].applyAsInt(0x8000_0000), functions[i]);
            assertEquals(0xFFFF_FFFF_8000_0000L, SimControl.args(functions[i], -1)[0], functions[i]);
        }
        assertEquals(0L, SimControl.args("RFID_PurgeTags", -1)[1], "purge flags are 0");
    }

    @Test
    void tagLocationingSendsTheIdAsBytes() {
        ORLANatives.RFID_PerformTagLocationing(NO_READER, "0aF1", 2, null);
        Call call = Call.last("RFID_PerformTagLocationing");
        assertArrayEquals(new byte[] {0x0A, (byte) 0xF1}, call.blob("tagID"));
        assertEquals(2L, call.arg(2));
        assertEquals(0L, call.arg(3), "no antennas: NULL");
        assertEquals(0L, call.arg(4));
        assertEquals(0L, call.arg(5));

        ORLANatives.RFID_PerformTagLocationing(NO_READER, "ABC", 1, antennas(12));
        call = Call.last("RFID_PerformTagLocationing");
        assertArrayEquals(new byte[] {(byte) 0xAB}, call.blob("tagID"));
        byte[] list = call.blob("antennaInfo.antennaList");
        assertEquals(24, list.length);
        assertEquals(12, Bytes.u16(list, 22));

        ORLANatives.RFID_PerformTagLocationing(NO_READER, "3000", 0, null);
        call = Call.last("RFID_PerformTagLocationing");
        assertNotEquals(0L, call.arg(1), "a length of 0 still gets a buffer");
        assertArrayEquals(new byte[0], call.blob("tagID"));
    }

    @Test
    void tagLocationingStatusComesBackUnchanged() {
        int handle = TagDataTest.connect();
        SimControl.setStatus("RFID_PerformTagLocationing", 31);
        assertEquals(31, ORLANatives.RFID_PerformTagLocationing(handle, "300833B2DDD9014000000001", 12, null));
    }

    @Test
    void easScanPassesAntennasAndTriggersOrNulls() {
        TRIGGER_INFO trigger = new TRIGGER_INFO();
        trigger.startTrigger.type = START_TRIGGER_TYPE.START_TRIGGER_TYPE_PERIODIC;
        trigger.startTrigger.value.periodic.periodMilliseconds = 250;
        trigger.startTrigger.value.periodic.startTime.Year = 2031;
        trigger.stopTrigger.type = STOP_TRIGGER_TYPE.STOP_TRIGGER_TYPE_DURATION;
        trigger.stopTrigger.value.duration = 1500;

        assertEquals(INVALID_HANDLE, ORLANatives.RFID_PerformNXPEASScan(NO_READER, antennas(8), trigger));
        Call call = Call.last("RFID_PerformNXPEASScan");
        assertEquals(8L, Bytes.u32(call.blob("antennaInfo"), 8));
        assertEquals(8, Bytes.u16(call.blob("antennaInfo.antennaList"), 14));
        byte[] r = call.blob("triggerInfo");
        assertEquals(1L, Bytes.u32(r, 0));
        assertEquals(250L, Bytes.u32(r, 8));
        assertEquals(1L, Bytes.u32(r, 24));
        assertEquals(1500L, Bytes.u32(r, 28));
        assertEquals(2031, Bytes.u16(call.blob("triggerInfo.startTrigger.startTime"), 0));
        assertArrayEquals(new byte[256], call.blob("triggerInfo.extraTriggers"));
        assertEquals(0L, call.arg(3), "the reserved argument is NULL");

        ORLANatives.RFID_PerformNXPEASScan(NO_READER, null, null);
        call = Call.last("RFID_PerformNXPEASScan");
        assertArrayEquals(new long[] {NO_READER, 0, 0, 0}, call.args());
        assertNull(call.blob("triggerInfo"));
    }
}
