package com.kovra.rfid.orla;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertNotEquals;

import com.kovra.rfid.orla.sim.Call;
import com.kovra.rfid.orla.sim.SimControl;
import org.junit.jupiter.api.Test;

/** Inventory, access sequence, tag locationing and EAS scan calls: arguments, optional records and statuses. */
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

    /**
     * The three operations with every object null: the handle sign-extended, NULL for each object and for the
     * reserved argument, and the status as it stands. Set objects reach them through the shared conversions.
     */
    @Test
    void operationsPassNullForAbsentObjectsAndReturnTheStatus() {
        SimControl.setStatus("RFID_PerformInventory", 0x7FFF_0000);
        assertEquals(0x7FFF_0000, ORLANatives.RFID_PerformInventory(-2, null, null, null));
        assertArrayEquals(new long[] {-2L, 0, 0, 0, 0}, SimControl.args("RFID_PerformInventory", -1));
        SimControl.setStatus("RFID_PerformAccessSequence", -7);
        assertEquals(-7, ORLANatives.RFID_PerformAccessSequence(-3, null, null, null));
        assertArrayEquals(new long[] {-3L, 0, 0, 0, 0}, SimControl.args("RFID_PerformAccessSequence", -1));
        ORLANatives.RFID_PerformNXPEASScan(NO_READER, null, null);
        assertArrayEquals(new long[] {NO_READER, 0, 0, 0}, SimControl.args("RFID_PerformNXPEASScan", -1));
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
}
