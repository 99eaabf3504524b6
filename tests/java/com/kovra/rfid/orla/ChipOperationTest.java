package com.kovra.rfid.orla;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertNotEquals;

import com.kovra.rfid.orla.sim.Bytes;
import com.kovra.rfid.orla.sim.Call;
import org.junit.jupiter.api.Test;

/**
 * NXP and Impinj commands: their zeroed 40- and 80-byte records and the
 * optional tag ID (NULL for a length that fails the command's test, with
 * the length passed as given).
 */
class ChipOperationTest extends TagAccessTest {

    @Test
    void tagIdIsConvertedOnlyForLengthsThatPassEachTest() {
        ORLANatives.RFID_NXPSetEAS(NO_READER, null, 0, null, null, null);
        Call call = Call.last("RFID_NXPSetEAS");
        assertArrayEquals(new long[] {0, 0, 0}, new long[] {call.arg(1), call.arg(2), call.arg(3)},
                "no tag ID, length 0, no record");
        ORLANatives.RFID_NXPReadProtect(NO_READER, null, 0, null, null, null);
        assertArrayEquals(new long[] {0, 0}, new long[] {Call.last("RFID_NXPReadProtect").arg(1),
            Call.last("RFID_NXPReadProtect").arg(2)});

        ORLANatives.RFID_NXPSetEAS(NO_READER, TAG_ID, -1, null, null, null);
        ORLANatives.RFID_ImpinjQTWrite(NO_READER, TAG_ID, -1, null, null, null);
        ORLANatives.RFID_ImpinjQTRead(NO_READER, TAG_ID, -1, null, null, null, null, null, null, true);
        ORLANatives.RFID_NXPChangeConfig(NO_READER, TAG_ID, -1, null, null, null, null, null, null, true);
        for (String fn : new String[] {"RFID_NXPSetEAS", "RFID_ImpinjQTWrite", "RFID_ImpinjQTRead",
            "RFID_NXPChangeConfig"}) {
            call = Call.last(fn);
            assertArrayEquals(new long[] {0, 0xFFFF_FFFFL}, new long[] {call.arg(1), call.arg(2)},
                    fn + ": a negative length gives no tag ID and passes as it is");
        }

        ORLANatives.RFID_ImpinjQTRead(NO_READER, "0A0b", 2, null, null, null, null, null, null, true);
        assertArrayEquals(new byte[] {0x0A, 0x0B}, Call.last("RFID_ImpinjQTRead").blob("tagID"));
    }

    @Test
    void resetReadProtectTakesNoTagIdAndNoFilter() {
        NXP_RESET_READ_PROTECT_PARAMS reset = new NXP_RESET_READ_PROTECT_PARAMS();
        reset.accessPassword = PASSWORD;
        ORLANatives.RFID_NXPResetReadProtect(NO_READER, reset, twoAntennas());
        Call call = Call.last("RFID_NXPResetReadProtect");
        assertArrayEquals(new long[] {NO_READER_RAW, 0}, new long[] {call.arg(0), call.arg(3)});
        byte[] record = call.blob("params");
        assertEquals(0x8765_4321L, Bytes.u32(record, 0));
        assertZero(record, 4, 40);
        assertTwoAntennas(call);

        ORLANatives.RFID_NXPResetReadProtect(NO_READER, null, twoAntennas());
        call = Call.last("RFID_NXPResetReadProtect");
        assertEquals(0L, call.arg(1), "no record");
        assertNotEquals(0L, call.arg(2), "the antennas all the same");
    }

    /** Each command's zeroed record: the password's low 32 bits, the command's own fields, zeros after them. */
    @Test
    void eachCommandSendsItsZeroedRecord() {
        NXP_READ_PROTECT_PARAMS protect = new NXP_READ_PROTECT_PARAMS();
        protect.accessPassword = PASSWORD;
        assertEquals(1, ORLANatives.RFID_NXPReadProtect(NO_READER, TAG_ID, 6, protect, null, null));
        assertEquals(0x8765_4321L, Bytes.u32(sentParams(Call.last("RFID_NXPReadProtect"), 4), 0));

        NXP_SET_EAS_PARAMS eas = new NXP_SET_EAS_PARAMS();
        eas.accessPassword = PASSWORD;
        eas.EASState = true;
        ORLANatives.RFID_NXPSetEAS(NO_READER, TAG_ID, 6, eas, null, null);
        assertArrayEquals(new long[] {0x8765_4321L, 1}, fields(sentParams(Call.last("RFID_NXPSetEAS"), 5), 0, 4, 4, 1));

        NXP_CHANGE_CONFIG_PARAMS config = new NXP_CHANGE_CONFIG_PARAMS();
        config.accessPassword = PASSWORD;
        config.ChangeConfigWord = (short) 0x8001;
        ORLANatives.RFID_NXPChangeConfig(NO_READER, TAG_ID, 6, config, null, null, null, null, null, true);
        assertArrayEquals(new long[] {0x8765_4321L, 0x8001},
                fields(sentParams(Call.last("RFID_NXPChangeConfig"), 6), 0, 4, 4, 2));

        IMPINJ_QT_WRITE_PARAMS write = new IMPINJ_QT_WRITE_PARAMS();
        write.accessPassword = PASSWORD;
        write.qtPersist = true;
        write.qtData.qtControlData = (short) 0x8000;
        ORLANatives.RFID_ImpinjQTWrite(NO_READER, TAG_ID, 6, write, null, null);
        assertArrayEquals(new long[] {0x8765_4321L, 1, 0, 0, 0x8000},
                fields(sentParams(Call.last("RFID_ImpinjQTWrite"), 10), 0, 4, 4, 1, 5, 1, 6, 2, 8, 2));

        IMPINJ_QT_READ_PARAMS read = new IMPINJ_QT_READ_PARAMS();
        read.accessPassword = PASSWORD;
        ORLANatives.RFID_ImpinjQTRead(NO_READER, TAG_ID, 6, read, null, null, null, null, null, false);
        assertEquals(0x8765_4321L, Bytes.u32(sentParams(Call.last("RFID_ImpinjQTRead"), 4), 0));
    }
}
