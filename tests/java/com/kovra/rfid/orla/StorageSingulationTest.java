package com.kovra.rfid.orla;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertSame;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.kovra.rfid.orla.sim.Bytes;
import com.kovra.rfid.orla.sim.Call;
import com.kovra.rfid.orla.sim.SimControl;
import org.junit.jupiter.api.Test;

/** Tag storage settings (16 bytes) and singulation control (20 bytes), both directions. */
class StorageSingulationTest extends NativeTest {

    @Test
    void storageSettingsGoOutWholeAndComeBackOnlyOnSuccess() {
        int reader = connect();
        TAG_STORAGE_SETTINGS s = new TAG_STORAGE_SETTINGS();
        s.maxTagCount = -1;
        s.maxMemoryBankByteCount = 64;
        s.maxTagIDByteCount = 0x1234_5678;
        s.tagFields = (short) 0x8001;
        s.enableAccessReports = true;
        assertEquals(0, ORLANatives.RFID_SetTagStorageSettings(reader, s));
        assertArrayEquals(new Bytes.Builder(16).u32(0, -1).u32(4, 64).u32(8, 0x1234_5678).u16(12, 0x8001).u8(14, 1)
                .build(), SimControl.blob("RFID_SetTagStorageSettings", -1, "tagStorageSettings"));

        SimControl.setOutput("RFID_GetTagStorageSettings",
                new Bytes.Builder(16).u32(0, 100).u32(4, 200).u32(8, 0xFFFF_FFFFL).u16(12, 0x8000).u8(14, 1).build());
        TAG_STORAGE_SETTINGS got = new TAG_STORAGE_SETTINGS();
        got.discardTagsOnInventoryStop = true;
        assertEquals(0, ORLANatives.RFID_GetTagStorageSettings(reader, got));
        assertArrayEquals(new int[] {100, 200, -1, -32768},
                new int[] {got.maxTagCount, got.maxMemoryBankByteCount, got.maxTagIDByteCount, got.tagFields});
        assertTrue(got.enableAccessReports);
        assertFalse(got.discardTagsOnInventoryStop);
    }

    /**
     * Record bytes come back through the JNI setter as they stand, and the virtual machine keeps bit 0 of
     * what it is given: the byte 2 reads false, where a byte normalised to 1 would read true.
     */
    @Test
    void booleansComeBackAsTheyStand() {
        int reader = connect();
        SimControl.setOutput("RFID_GetTagStorageSettings", new Bytes.Builder(16).u8(14, 2).u8(15, 3).build());
        TAG_STORAGE_SETTINGS got = new TAG_STORAGE_SETTINGS();
        got.enableAccessReports = true;
        assertEquals(0, ORLANatives.RFID_GetTagStorageSettings(reader, got));
        assertFalse(got.enableAccessReports);
        assertTrue(got.discardTagsOnInventoryStop);

        SimControl.setOutput("RFID_GetSingulationControl", new Bytes.Builder(20).u8(8, 2).build());
        SINGULATION_CONTROL c = new SINGULATION_CONTROL();
        c.stateAwareSingulationAction.perform = true;
        assertEquals(0, ORLANatives.RFID_GetSingulationControl(reader, 1, c));
        assertFalse(c.stateAwareSingulationAction.perform);
    }

    @Test
    void setSingulationReadsTheEnumObjects() {
        SINGULATION_CONTROL c = new SINGULATION_CONTROL();
        c.session = SESSION.SESSION_S2;
        c.tagPopulation = (short) 0x8000;
        c.tagTransitTimeMilliseconds = 500;
        c.enumSession = 3;
        c.stateAwareSingulationAction.perform = true;
        c.stateAwareSingulationAction.inventoryState = INVENTORY_STATE.INVENTORY_STATE_AB_FLIP;
        c.stateAwareSingulationAction.slFlag = SL_FLAG.SL_FLAG_DEASSERTED;
        assertEquals(0, ORLANatives.RFID_SetSingulationControl(connect(), 0x1_0003, c));

        Call call = Call.last("RFID_SetSingulationControl");
        assertEquals(3L, call.arg(1), "the antenna as 16 bits");
        assertArrayEquals(new long[] {2, 0x8000, 500, 1, 2, 1},
                fields(call.blob("singulationControl"), 0, 4, 4, 2, 6, 2, 8, 1, 12, 4, 16, 4));
    }

    @Test
    void getSingulationFillsTheRawShortsAndLeavesTheEnumObjects() {
        int reader = connect();
        SimControl.setOutput("RFID_GetSingulationControl", new Bytes.Builder(20).u32(0, 2).u16(4, 0xFFFF).u16(6, 9)
                .u8(8, 1).u32(12, 0x1_0001L).u32(16, 0xFFFF_0002L).build());
        SINGULATION_CONTROL c = new SINGULATION_CONTROL();
        assertEquals(0, ORLANatives.RFID_GetSingulationControl(reader, 4, c));

        STATE_AWARE_SINGULATION_ACTION a = c.stateAwareSingulationAction;
        assertArrayEquals(new short[] {2, -1, 9, 1, 2}, new short[] {c.enumSession, c.tagPopulation,
            c.tagTransitTimeMilliseconds, a.enumInventoryState, a.enumSLFlag}, "enumerations as their low 16 bits");
        assertTrue(a.perform);
        assertSame(SESSION.SESSION_S0, c.session);
        assertSame(INVENTORY_STATE.INVENTORY_STATE_A, a.inventoryState);
        assertSame(SL_FLAG.SL_ALL, a.slFlag);
    }
}
