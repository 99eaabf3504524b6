package com.kovra.rfid.orla;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;

import com.kovra.rfid.orla.sim.Bytes;
import com.kovra.rfid.orla.sim.Call;
import com.kovra.rfid.orla.sim.SimControl;
import org.junit.jupiter.api.Test;

/** GPI ports, GPO states, the GPI debounce pair and the user LED. */
class GpioLedTest extends NativeTest {

    @Test
    void debounceRecordIsTheFirstFourIntsVerbatim() {
        int reader = connect();
        int[] record = {1, -2, Integer.MAX_VALUE, Integer.MIN_VALUE, 99};
        assertEquals(0, ORLANatives.RFID_SetGPIDebounceTime(reader, -9, record));
        assertArrayEquals(new long[] {1, 0xFFFF_FFFEL, 0x7FFF_FFFFL, 0x8000_0000L},
                fields(Call.last("RFID_SetGPIDebounceTime").blob("debounce"), 0, 4, 4, 4, 8, 4, 12, 4));
    }

    @Test
    void debounceGetterNeverCopiesTheRecordBack() {
        // The simulated reader also overwrites the record it was given.
        SimControl.setOutput("RFID_GetGPIDebounceTime", new Bytes.Builder(20).u32(4, 0x5555_5555L)
                .u32(8, 0x5555_5555L).u32(12, 0x5555_5555L).u32(16, 0x5555_5555L).build());
        int[] record = {10, 20, -30, 40};
        assertEquals(0, ORLANatives.RFID_GetGPIDebounceTime(connect(), new int[1], record));
        assertArrayEquals(new int[] {10, 20, -30, 40}, record, "the record is not copied back");
        assertArrayEquals(new long[] {10, 20, 0xFFFF_FFE2L, 40},
                fields(Call.last("RFID_GetGPIDebounceTime").blob("debounce"), 0, 4, 4, 4, 8, 4, 12, 4));
    }

    @Test
    void ledRecordCarriesColourDurationBlinkAndAZeroedTail() {
        int reader = connect();
        LED_INFO led = new LED_INFO();
        led.ledColor = LED_COLOR.LED_YELLOW;
        led.duration = -1;
        rawBoolean(led, "blink", 2);
        assertEquals(0, ORLANatives.RFID_SetUserLED(reader, led));
        byte[] sent = SimControl.blob("RFID_SetUserLED", -1, "ledInfo");
        assertArrayEquals(new long[] {3, 0xFFFF_FFFFL, 1}, fields(sent, 0, 4, 4, 4, 8, 1));
        assertArrayEquals(new byte[32], Bytes.slice(sent, 16, 32), "reserved bytes 16 to 47");

        led.ledColor = LED_COLOR.LED_RED;
        led.blink = false;
        ORLANatives.RFID_SetUserLED(reader, led);
        assertArrayEquals(new long[] {1, 0}, fields(SimControl.blob("RFID_SetUserLED", -1, "ledInfo"), 0, 4, 8, 1));
    }
}
