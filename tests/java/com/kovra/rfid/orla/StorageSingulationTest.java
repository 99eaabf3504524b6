package com.kovra.rfid.orla;

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
    void setStorageSendsEveryFieldWithBooleansAsZeroOrOne() {
        int handle = TagDataTest.connect();
        TAG_STORAGE_SETTINGS s = new TAG_STORAGE_SETTINGS();
        s.maxTagCount = -1;
        s.maxMemoryBankByteCount = 64;
        s.maxTagIDByteCount = 0x1234_5678;
        s.tagFields = (short) 0x8001;
        s.enableAccessReports = true;
        s.discardTagsOnInventoryStop = false;

        assertEquals(0, ORLANatives.RFID_SetTagStorageSettings(handle, s));
        byte[] r = SimControl.blob("RFID_SetTagStorageSettings", -1, "tagStorageSettings");
        assertEquals(0xFFFF_FFFFL, Bytes.u32(r, 0));
        assertEquals(64L, Bytes.u32(r, 4));
        assertEquals(0x1234_5678L, Bytes.u32(r, 8));
        assertEquals(0x8001, Bytes.u16(r, 12));
        assertEquals(1, Bytes.u8(r, 14));
        assertEquals(0, Bytes.u8(r, 15));
    }

    @Test
    void getStorageWritesBackOnlyOnSuccess() {
        int handle = TagDataTest.connect();
        SimControl.setOutput("RFID_GetTagStorageSettings",
                new Bytes.Builder(16).u32(0, 100).u32(4, 200).u32(8, 0xFFFF_FFFFL).u16(12, 0x8000).u8(14, 1).build());
        TAG_STORAGE_SETTINGS s = new TAG_STORAGE_SETTINGS();
        s.discardTagsOnInventoryStop = true;

        assertEquals(0, ORLANatives.RFID_GetTagStorageSettings(handle, s));
        assertEquals(100, s.maxTagCount);
        assertEquals(200, s.maxMemoryBankByteCount);
        assertEquals(-1, s.maxTagIDByteCount);
        assertEquals(-32768, s.tagFields);
        assertTrue(s.enableAccessReports);
        assertFalse(s.discardTagsOnInventoryStop);

        SimControl.setStatus("RFID_GetTagStorageSettings", 5);
        TAG_STORAGE_SETTINGS kept = new TAG_STORAGE_SETTINGS();
        kept.maxTagCount = 9;
        assertEquals(5, ORLANatives.RFID_GetTagStorageSettings(handle, kept));
        assertEquals(9, kept.maxTagCount);
        assertEquals(0, kept.tagFields);
        assertFalse(kept.enableAccessReports);
    }

    @Test
    void setSingulationReadsTheEnumObjects() {
        int handle = TagDataTest.connect();
        SINGULATION_CONTROL c = new SINGULATION_CONTROL();
        c.session = SESSION.SESSION_S2;
        c.tagPopulation = (short) 0x8000;
        c.tagTransitTimeMilliseconds = 500;
        c.enumSession = 3;
        c.stateAwareSingulationAction.perform = true;
        c.stateAwareSingulationAction.inventoryState = INVENTORY_STATE.INVENTORY_STATE_AB_FLIP;
        c.stateAwareSingulationAction.slFlag = SL_FLAG.SL_FLAG_DEASSERTED;

        assertEquals(0, ORLANatives.RFID_SetSingulationControl(handle, 0x1_0003, c));
        Call call = Call.last("RFID_SetSingulationControl");
        assertEquals(3L, call.arg(1), "the antenna goes as 16 bits");
        byte[] r = call.blob("singulationControl");
        assertEquals(20, r.length);
        assertEquals(2L, Bytes.u32(r, 0));
        assertEquals(0x8000, Bytes.u16(r, 4));
        assertEquals(500, Bytes.u16(r, 6));
        assertEquals(1, Bytes.u8(r, 8));
        assertEquals(2L, Bytes.u32(r, 12));
        assertEquals(1L, Bytes.u32(r, 16));
    }

    @Test
    void getSingulationFillsTheRawShortsAndLeavesTheEnumObjects() {
        int handle = TagDataTest.connect();
        SimControl.setOutput("RFID_GetSingulationControl", new Bytes.Builder(20).u32(0, 2).u16(4, 0xFFFF).u16(6, 9)
                .u8(8, 1).u32(12, 0x1_0001L).u32(16, 0xFFFF_0002L).build());
        SINGULATION_CONTROL c = new SINGULATION_CONTROL();

        assertEquals(0, ORLANatives.RFID_GetSingulationControl(handle, 4, c));
        assertEquals(4L, SimControl.args("RFID_GetSingulationControl", -1)[1]);
        assertEquals(2, c.enumSession);
        assertSame(SESSION.SESSION_S0, c.session, "the session object is not touched");
        assertEquals(-1, c.tagPopulation);
        assertEquals(9, c.tagTransitTimeMilliseconds);
        assertTrue(c.stateAwareSingulationAction.perform);
        assertEquals(1, c.stateAwareSingulationAction.enumInventoryState, "low 16 bits");
        assertEquals(2, c.stateAwareSingulationAction.enumSLFlag, "low 16 bits");
        assertSame(INVENTORY_STATE.INVENTORY_STATE_A, c.stateAwareSingulationAction.inventoryState);
        assertSame(SL_FLAG.SL_ALL, c.stateAwareSingulationAction.slFlag);

        SimControl.setStatus("RFID_GetSingulationControl", 6);
        SINGULATION_CONTROL kept = new SINGULATION_CONTROL();
        kept.tagPopulation = 77;
        assertEquals(6, ORLANatives.RFID_GetSingulationControl(handle, 4, kept));
        assertEquals(77, kept.tagPopulation);
        assertEquals(0, kept.enumSession);
        assertFalse(kept.stateAwareSingulationAction.perform);
    }
}
