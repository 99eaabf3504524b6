package com.kovra.rfid.orla;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.kovra.rfid.orla.sim.Bytes;
import com.kovra.rfid.orla.sim.Call;
import com.kovra.rfid.orla.sim.SimControl;
import org.junit.jupiter.api.Test;

/** GPI ports, GPO states, the GPI debounce pair and the user LED. */
class GpioLedTest extends NativeTest {

    @Test
    void portSettersPassHandlePortAndFlag() {
        assertEquals(INVALID_HANDLE, ORLANatives.RFID_EnableGPIPort(-3, -2, true));
        assertArrayEquals(new long[] {-3L, 0xFFFF_FFFEL, 1}, SimControl.args("RFID_EnableGPIPort", -1));
        ORLANatives.RFID_EnableGPIPort(-3, 4, false);
        assertEquals(0L, Call.last("RFID_EnableGPIPort").arg(2));

        int reader = connect();
        assertEquals(0, ORLANatives.RFID_SetGPOState(reader, 0x8000_0001, true));
        assertArrayEquals(new long[] {reader, 0x8000_0001L, 1}, SimControl.args("RFID_SetGPOState", -1));
        ORLANatives.RFID_SetGPOState(reader, 1, false);
        assertEquals(0L, Call.last("RFID_SetGPOState").arg(2));
    }

    @Test
    void gpiStateWritesFlagAndValueOnlyOnSuccess() {
        int reader = connect();
        SimControl.setOutput("RFID_GetGPIState", new Bytes.Builder(5).u8(0, 1).u32(1, 0x8000_0001L).build());
        boolean[] state = {false};
        int[] value = {3};
        assertEquals(0, ORLANatives.RFID_GetGPIState(reader, 2, state, value));
        assertTrue(state[0]);
        assertEquals(0x8000_0001, value[0]);
        assertEquals(2L, Call.last("RFID_GetGPIState").arg(1));

        SimControl.setStatus("RFID_GetGPIState", FAILED);
        state[0] = false;
        value[0] = 3;
        assertEquals(FAILED, ORLANatives.RFID_GetGPIState(reader, 2, state, value));
        assertFalse(state[0]);
        assertEquals(3, value[0]);
    }

    @Test
    void gpoStateIsPresetAndWrittenOnlyOnSuccess() {
        int reader = connect();
        SimControl.setOutput("RFID_GetGPOState", new byte[] {0});
        boolean[] state = {true};
        assertEquals(0, ORLANatives.RFID_GetGPOState(reader, 7, state));
        assertFalse(state[0]);
        assertEquals(0, Bytes.u8(Call.last("RFID_GetGPOState").blob("state"), 0), "preset to 0");

        SimControl.setStatus("RFID_GetGPOState", FAILED);
        SimControl.setOutput("RFID_GetGPOState", new byte[] {1});
        state[0] = false;
        assertEquals(FAILED, ORLANatives.RFID_GetGPOState(reader, 7, state));
        assertFalse(state[0]);
    }

    @Test
    void debounceRecordIsTheFirstFourIntsVerbatim() {
        int reader = connect();
        int[] record = {1, -2, Integer.MAX_VALUE, Integer.MIN_VALUE, 99};
        assertEquals(0, ORLANatives.RFID_SetGPIDebounceTime(reader, -9, record));
        Call set = Call.last("RFID_SetGPIDebounceTime");
        assertEquals(0xFFFF_FFF7L, set.arg(1));
        assertArrayEquals(new long[] {1, 0xFFFF_FFFEL, 0x7FFF_FFFFL, 0x8000_0000L},
                fields(set.blob("debounce"), 0, 4, 4, 4, 8, 4, 12, 4));
    }

    @Test
    void debounceGetterWritesOnlyTheValueAndNeverTheRecord() {
        int reader = connect();
        // The simulated reader also overwrites the record it was given.
        SimControl.setOutput("RFID_GetGPIDebounceTime", new Bytes.Builder(20).u32(0, 0xFFFF_FFF0L)
                .u32(4, 0x5555_5555L).u32(8, 0x5555_5555L).u32(12, 0x5555_5555L).u32(16, 0x5555_5555L).build());
        int[] value = {8};
        int[] record = {10, 20, -30, 40};
        assertEquals(0, ORLANatives.RFID_GetGPIDebounceTime(reader, value, record));
        assertEquals(-16, value[0]);
        assertArrayEquals(new int[] {10, 20, -30, 40}, record, "the record is not copied back");
        Call call = Call.last("RFID_GetGPIDebounceTime");
        assertEquals(0L, Bytes.u32(call.blob("value"), 0), "preset to 0");
        assertArrayEquals(new long[] {10, 20, 0xFFFF_FFE2L, 40}, fields(call.blob("debounce"), 0, 4, 4, 4, 8, 4, 12, 4));

        SimControl.setStatus("RFID_GetGPIDebounceTime", FAILED);
        value[0] = 8;
        assertEquals(FAILED, ORLANatives.RFID_GetGPIDebounceTime(reader, value, record));
        assertEquals(8, value[0]);
        assertArrayEquals(new int[] {10, 20, -30, 40}, record);
    }

    @Test
    void ledRecordCarriesColourDurationBlinkAndAZeroedTail() {
        int reader = connect();
        LED_INFO led = new LED_INFO();
        led.ledColor = LED_COLOR.LED_YELLOW;
        led.duration = -1;
        led.blink = true;
        assertEquals(0, ORLANatives.RFID_SetUserLED(reader, led));
        byte[] sent = SimControl.blob("RFID_SetUserLED", -1, "ledInfo");
        assertArrayEquals(new long[] {3, 0xFFFF_FFFFL, 1}, fields(sent, 0, 4, 4, 4, 8, 1));
        assertArrayEquals(new byte[32], Bytes.slice(sent, 16, 32), "reserved bytes 16 to 47");

        led.ledColor = LED_COLOR.LED_RED;
        led.blink = false;
        ORLANatives.RFID_SetUserLED(reader, led);
        assertArrayEquals(new long[] {1, 0}, fields(SimControl.blob("RFID_SetUserLED", -1, "ledInfo"), 0, 4, 8, 1));
    }

    @Test
    void theSimulatedReaderKeepsEachOutputPortsState() {
        int reader = connect();
        ORLANatives.RFID_SetGPOState(reader, 3, true);
        boolean[] third = {false};
        boolean[] fourth = {true};
        ORLANatives.RFID_GetGPOState(reader, 3, third);
        ORLANatives.RFID_GetGPOState(reader, 4, fourth);
        assertTrue(third[0]);
        assertFalse(fourth[0]);
    }
}
