package com.kovra.rfid.orla;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertNotEquals;
import static org.junit.jupiter.api.Assertions.assertNull;
import static org.junit.jupiter.api.Assertions.assertSame;

import com.kovra.rfid.orla.sim.Bytes;
import com.kovra.rfid.orla.sim.Call;
import com.kovra.rfid.orla.sim.SimControl;
import org.junit.jupiter.api.Test;

/** Antenna indices, RF configuration, cable loss, physical properties, antenna mode and read points. */
class AntennaConfigTest extends NativeTest {

    private static final short ANTENNA = (short) 0x8003;
    private static final long ANTENNA_ARG = 0x8003L;
    private static final int RF_BLOCK = 320;

    @Test
    void antennaIndicesComeBackWhateverTheStatus() {
        int reader = connect();
        short[] first = {11};
        short[] second = {12};
        short[] third = {13};
        SimControl.setOutput("RFID_GetAntennaConfig", new Bytes.Builder(6).u16(0, 0x8001).u16(2, 2).u16(4, 0xFFFF)
                .build());
        assertEquals(0, ORLANatives.RFID_GetAntennaConfig(reader, ANTENNA, first, second, third));
        assertEquals(ANTENNA_ARG, Call.last("RFID_GetAntennaConfig").arg(1));
        assertArrayEquals(new short[] {-32767, 2, -1}, new short[] {first[0], second[0], third[0]});

        SimControl.setOutput("RFID_GetAntennaConfig", new Bytes.Builder(6).u16(0, 4).u16(2, 5).u16(4, 6).build());
        SimControl.setStatus("RFID_GetAntennaConfig", 3);
        assertEquals(3, ORLANatives.RFID_GetAntennaConfig(reader, ANTENNA, first, second, third));
        assertArrayEquals(new short[] {4, 5, 6}, new short[] {first[0], second[0], third[0]},
                "written even though the call failed");
    }

    @Test
    void getRfConfigZeroExtendsAndWritesTheStopTriggerAsPlainInts() {
        int reader = connect();
        SimControl.setOutput("RFID_GetAntennaRfConfig", new Bytes.Builder(32).u16(0, 0xFFFF).u16(2, 2)
                .u16(4, 0x8000).u16(6, 0xA5A5).u32(8, 0xFFFF_FFFFL).u32(12, 0x8000_0001L).u16(16, 0xFFFE).u16(18, 7)
                .s32(20, 0xA5A5A5A5).s32(24, 3).u16(28, 0xFFFF).u16(30, 0xA5A5).build());
        ANTENNA_RF_CONFIG config = new ANTENNA_RF_CONFIG();
        ANTENNA_STOP_TRIGGER stop = config.antennaStopTrigger;
        assertEquals(0, ORLANatives.RFID_GetAntennaRfConfig(reader, ANTENNA, config));
        assertEquals(ANTENNA_ARG, Call.last("RFID_GetAntennaRfConfig").arg(1));

        assertArrayEquals(new int[] {65535, 2, 32768, 65534, 7}, new int[] {config.transmitPowerIndex,
            config.receiveSensitivityIndex, config.transmitFrequencyIndex, config.transmitPort, config.receivePort});
        assertEquals(0xFFFF_FFFFL, config.rfModeTableIndex);
        assertEquals(0x8000_0001L, config.tari);
        assertSame(stop, config.antennaStopTrigger);
        assertEquals(65535, stop.stopTriggerValue);
        assertEquals(3, stop.enumstopTriggerType);
        assertSame(ANTENNA_STOP_TRIGGER_TYPE.ANTENNA_STOP_TRIGGER_TYPE_NONE, stop.stopTriggerType,
                "the enum object is only read, by the setter");
    }

    @Test
    void setRfConfigTruncatesIntoAZeroedBlockAndReadsTheEnumObject() {
        int reader = connect();
        ANTENNA_RF_CONFIG config = new ANTENNA_RF_CONFIG();
        config.transmitPowerIndex = 0x1_FFFF;
        config.receiveSensitivityIndex = -2;
        config.transmitFrequencyIndex = 0x1_2345;
        config.rfModeTableIndex = 0x1_0000_0002L;
        config.tari = -1L;
        config.transmitPort = 0x1_0001;
        config.receivePort = 65535;
        config.antennaStopTrigger.stopTriggerValue = 0x2_0003;
        config.antennaStopTrigger.stopTriggerType = ANTENNA_STOP_TRIGGER_TYPE.ANTENNA_STOP_TRIGGER_TYPE_N_ATTEMPTS;
        config.antennaStopTrigger.enumstopTriggerType = 7;
        assertEquals(0, ORLANatives.RFID_SetAntennaRfConfig(reader, ANTENNA, config));

        Call call = Call.last("RFID_SetAntennaRfConfig");
        assertEquals(ANTENNA_ARG, call.arg(1));
        byte[] block = call.blob("config");
        assertEquals(RF_BLOCK, block.length);
        assertArrayEquals(new long[] {0xFFFF, 0xFFFE, 0x2345, 0, 2, 0xFFFF_FFFFL, 1, 0xFFFF, 0, 2, 3, 0},
                fields(block, 0, 2, 2, 2, 4, 2, 6, 2, 8, 4, 12, 4, 16, 2, 18, 2, 20, 4, 24, 4, 28, 2, 30, 2));
        assertZero(block, 32, RF_BLOCK);

        assertEquals(2, ORLANatives.RFID_SetAntennaRfConfig(reader, ANTENNA, null),
                "the simulator refuses a NULL configuration");
        call = Call.last("RFID_SetAntennaRfConfig");
        assertEquals(0L, call.arg(2));
        assertNull(call.blob("config"));
    }

    private static CABLE_LOSS_COMPENSATION cableLoss(int antenna, float length, float loss) {
        CABLE_LOSS_COMPENSATION c = new CABLE_LOSS_COMPENSATION();
        c.antennaID = (short) antenna;
        c.cableLengthInFt = length;
        c.cableLossPer100Ft = loss;
        return c;
    }

    @Test
    void cableLossRecordsGoOutOnePointerEachAndTheCountAsGiven() {
        int reader = connect();
        CABLE_LOSS_COMPENSATION[] list = {cableLoss(-3, 12.5f, -0.75f), cableLoss(2, Float.MAX_VALUE, 0f),
            cableLoss(0x7FFF, Float.MIN_VALUE, 1e-3f)};
        assertEquals(0, ORLANatives.RFID_SetCableLossCompensation(reader, (short) 3, list));
        Call call = Call.last("RFID_SetCableLossCompensation");
        assertEquals(3L, call.arg(1));
        assertEquals(24, call.blob("cableLoss").length);
        for (int i = 0; i < 3; i++) {
            byte[] r = call.blob("cableLoss[" + i + "]");
            assertEquals(list[i].antennaID & 0xFFFF, Bytes.u16(r, 0), "record " + i);
            assertEquals(Float.floatToRawIntBits(list[i].cableLengthInFt), Bytes.s32(r, 4), "record " + i);
            assertEquals(Float.floatToRawIntBits(list[i].cableLossPer100Ft), Bytes.s32(r, 8), "record " + i);
        }

        assertEquals(0, ORLANatives.RFID_SetCableLossCompensation(reader, (short) 1, list));
        assertEquals(1L, Call.last("RFID_SetCableLossCompensation").arg(1), "not the array's length");

        assertEquals(0, ORLANatives.RFID_SetCableLossCompensation(reader, (short) 0,
                new CABLE_LOSS_COMPENSATION[0]));
        call = Call.last("RFID_SetCableLossCompensation");
        assertEquals(3, SimControl.count("RFID_SetCableLossCompensation"), "an empty array is still sent");
        assertNotEquals(0L, call.arg(2));
        assertEquals(0, call.blob("cableLoss").length);
    }

    @Test
    void getCableLossSendsTheAntennaAndWritesBothFloatsOnlyOnSuccess() {
        int reader = connect();
        SimControl.setOutput("RFID_GetCableLossCompensation", new Bytes.Builder(12).u16(0, 9).f32(4, 33.25f)
                .f32(8, -1.5f).build());
        CABLE_LOSS_COMPENSATION c = cableLoss(-3, 1f, 2f);
        assertEquals(0, ORLANatives.RFID_GetCableLossCompensation(reader, c));
        assertArrayEquals(new Bytes.Builder(12).u16(0, 0xFFFD).build(),
                SimControl.blob("RFID_GetCableLossCompensation", -1, "cableLoss"), "a zeroed record with the antenna");
        assertEquals(33.25f, c.cableLengthInFt);
        assertEquals(-1.5f, c.cableLossPer100Ft);
        assertEquals(-3, c.antennaID, "the antenna is not written back");
    }
}
