package com.kovra.rfid.orla;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertNotEquals;

import com.kovra.rfid.orla.sim.Call;
import com.kovra.rfid.orla.sim.SimControl;
import org.junit.jupiter.api.Test;

/** Inventory, tag locationing and EAS scan calls: arguments, optional records and statuses. */
class InventoryTest extends NativeTest {

    /** No such reader: the simulator records the call and starts nothing. */
    private static final int NO_READER = 77;

    private static ANTENNA_INFO antennas(int count) {
        short[] ids = new short[count];
        for (int i = 0; i < count; i++) {
            ids[i] = (short) (i + 1);
        }
        return new ANTENNA_INFO(ids);
    }

    @Test
    void inventoryPassesNullForAbsentObjectsAndReturnsTheStatus() {
        SimControl.setStatus("RFID_PerformInventory", 0x7FFF_0000);
        assertEquals(0x7FFF_0000, ORLANatives.RFID_PerformInventory(-2, null, null, null));
        assertArrayEquals(new long[] {-2L, 0, 0, 0, 0}, SimControl.args("RFID_PerformInventory", -1));

        POST_FILTER filter = new POST_FILTER();
        filter.rssiRangeFilter = new RSSI_RANGE_FILTER();
        ORLANatives.RFID_PerformInventory(NO_READER, filter, antennas(12), new TRIGGER_INFO());
        Call call = Call.last("RFID_PerformInventory");
        assertEquals(12, fields(call.blob("antennaInfo"), 8, 4)[0]);
        assertEquals(12, fields(call.blob("antennaInfo.antennaList"), 22, 2)[0], "room for 12 antennas");
        assertEquals(0L, call.arg(4), "the reserved argument is NULL");
    }

    @Test
    void tagLocationingSendsTheIdAsBytes() {
        SimControl.setStatus("RFID_PerformTagLocationing", 31);
        assertEquals(31, ORLANatives.RFID_PerformTagLocationing(NO_READER, "0aF1", 2, null));
        Call call = Call.last("RFID_PerformTagLocationing");
        assertArrayEquals(new byte[] {0x0A, (byte) 0xF1}, call.blob("tagID"));
        assertArrayEquals(new long[] {2, 0, 0, 0}, new long[] {call.arg(2), call.arg(3), call.arg(4), call.arg(5)});

        ORLANatives.RFID_PerformTagLocationing(NO_READER, "ABC", 1, antennas(12));
        call = Call.last("RFID_PerformTagLocationing");
        assertArrayEquals(new byte[] {(byte) 0xAB}, call.blob("tagID"));
        assertEquals(12, fields(call.blob("antennaInfo.antennaList"), 22, 2)[0]);

        ORLANatives.RFID_PerformTagLocationing(NO_READER, "", 0, null);
        call = Call.last("RFID_PerformTagLocationing");
        assertNotEquals(0L, call.arg(1), "a length of 0 still gets a buffer");
        assertArrayEquals(new byte[0], call.blob("tagID"));
    }

    @Test
    void easScanPassesAntennasAndTriggersOrNulls() {
        TRIGGER_INFO trigger = new TRIGGER_INFO();
        trigger.startTrigger.type = START_TRIGGER_TYPE.START_TRIGGER_TYPE_PERIODIC;
        trigger.startTrigger.value.periodic.startTime.Year = 2031;
        trigger.stopTrigger.type = STOP_TRIGGER_TYPE.STOP_TRIGGER_TYPE_DURATION;
        trigger.stopTrigger.value.duration = 1500;
        ORLANatives.RFID_PerformNXPEASScan(NO_READER, antennas(8), trigger);
        Call call = Call.last("RFID_PerformNXPEASScan");
        assertEquals(8, fields(call.blob("antennaInfo.antennaList"), 14, 2)[0], "room for 8 antennas");
        assertArrayEquals(new long[] {1, 1, 1500}, fields(call.blob("triggerInfo"), 0, 4, 24, 4, 28, 4));
        assertEquals(2031, fields(call.blob("triggerInfo.startTrigger.startTime"), 0, 2)[0], "its own time block");
        assertArrayEquals(new byte[256], call.blob("triggerInfo.extraTriggers"));
        assertEquals(0L, call.arg(3), "the reserved argument is NULL");

        ORLANatives.RFID_PerformNXPEASScan(NO_READER, null, null);
        assertArrayEquals(new long[] {NO_READER, 0, 0, 0}, SimControl.args("RFID_PerformNXPEASScan", -1));
    }
}
