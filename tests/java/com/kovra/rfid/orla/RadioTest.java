package com.kovra.rfid.orla;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertSame;
import static org.junit.jupiter.api.Assertions.assertThrows;

import com.kovra.rfid.orla.sim.Bytes;
import com.kovra.rfid.orla.sim.SimControl;
import org.junit.jupiter.api.Test;

/** USB operation mode and power negotiation. */
class RadioTest extends NativeTest {

    @Test
    void usbSetReadsTheEnumObjectAndGetWritesTheRawShort() {
        int reader = connect();
        USB_OPERATION_MODE_SETTINGS set = new USB_OPERATION_MODE_SETTINGS();
        set.mode = USB_OPERATION_MODE.USB_OPERATION_MODE_SERIAL;
        set.enumMode = 7;
        rawBoolean(set, "allowLLRPConnectionOverride", 0x40);
        assertEquals(0, ORLANatives.RFID_SetUSBOperationMode(reader, set));
        assertArrayEquals(new long[] {1, 1}, fields(SimControl.blob("RFID_SetUSBOperationMode", -1, "settings"),
                0, 4, 4, 1), "mode from the ordinal, flag as 1");
        set.allowLLRPConnectionOverride = false;
        ORLANatives.RFID_SetUSBOperationMode(reader, set);
        assertEquals(0, Bytes.u8(SimControl.blob("RFID_SetUSBOperationMode", -1, "settings"), 4));

        SimControl.setOutput("RFID_GetUSBOperationMode", new Bytes.Builder(8).u32(0, 0x1_8002L).u8(4, 2).build());
        USB_OPERATION_MODE_SETTINGS got = new USB_OPERATION_MODE_SETTINGS();
        got.allowLLRPConnectionOverride = true;
        assertEquals(0, ORLANatives.RFID_GetUSBOperationMode(reader, got));
        assertEquals((short) 0x8002, got.enumMode, "low 16 bits of the mode, sign-extended");
        assertFalse(got.allowLLRPConnectionOverride, "the byte 2 as it stands: the virtual machine keeps bit 0");
        assertSame(USB_OPERATION_MODE.USB_OPERATION_MODE_NETWORK, got.mode, "the enum object is not written");
    }

    @Test
    void powerNegotiationIsNotBoundByNameSoJavaCannotReachIt() {
        int reader = connect();
        assertThrows(UnsatisfiedLinkError.class,
                () -> ORLANatives.RFID_GetPowerNegotiationStatus(reader, new POWER_NEGOTIATION_STATUS()));
        assertThrows(UnsatisfiedLinkError.class,
                () -> ORLANatives.RFID_SetPowerNegotiationState(reader, new POWER_NEGOTIATION_STATE()));
        assertThrows(UnsatisfiedLinkError.class,
                () -> ORLANatives.RFID_GetPowerNegotiationState(reader, new POWER_NEGOTIATION_STATE()));
        assertEquals(0, SimControl.count("RFID_GetPowerNegotiationStatus")
                + SimControl.count("RFID_SetPowerNegotiationState") + SimControl.count("RFID_GetPowerNegotiationState"));
    }
}
