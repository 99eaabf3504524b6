package com.kovra.rfid.orla;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertNotEquals;

import com.kovra.rfid.orla.sim.Call;
import com.kovra.rfid.orla.sim.SimControl;
import java.util.Arrays;
import java.util.function.IntUnaryOperator;
import org.junit.jupiter.api.Test;

/**
 * The natives that pass the handle and plain values straight to their C function: each value arrives in its
 * place at its width (Java ints and shorts cut or widened without sign where the reader takes unsigned
 * values, booleans as 1 or 0, enumerations as their ordinals), the handle sign-extended to 64 bits, and the
 * reader's status comes back as it stands.
 */
class ForwarderTest extends NativeTest {

    /** A handle and an event handle above 2^31 - 1 as Java ints: both must arrive sign-extended. */
    private static final int HANDLE = 0x8000_0000;
    private static final int EVENT = 0x8000_0005;
    private static final short ANTENNA = (short) 0x8003;

    private record Row(String fn, IntUnaryOperator call, long[] args) {}

    /** fn called as call(HANDLE); args are the values expected after the handle. */
    private static Row row(String fn, IntUnaryOperator call, long... args) {
        return new Row(fn, call, args);
    }

    @Test
    void argumentsArriveInOrderAtTheirWidthsAndTheStatusComesBackAsItStands() {
        Row[] rows = {
            row("RFID_Reconnect", ORLANatives::RFID_Reconnect),
            row("RFID_Disconnect", ORLANatives::RFID_DisConnect),
            row("RFID_Logout", ORLANatives::RFID_Logout),
            row("RFID_Restart", ORLANatives::RFID_Restart),
            row("RFID_InitiateLLRPConnectionFromReader", ORLANatives::RFID_InitiateLLRPConnectionFromReader),
            row("RFID_DisconnectLLRPConnectionFromReader", ORLANatives::RFID_DisconnectLLRPConnectionFromReader),
            row("RFID_StopInventory", ORLANatives::RFID_StopInventory),
            row("RFID_PurgeTags", ORLANatives::RFID_PurgeTags, 0),
            row("RFID_StopTagLocationing", ORLANatives::RFID_StopTagLocationing),
            row("RFID_StopNXPEASScan", ORLANatives::RFID_StopNXPEASScan),
            row("RFID_InitializeAccessSequence", ORLANatives::RFID_InitializeAccessSequence),
            row("RFID_StopAccessSequence", ORLANatives::RFID_StopAccessSequence),
            row("RFID_DeinitializeAccessSequence", ORLANatives::RFID_DeinitializeAccessSequence),
            row("RFID_DeleteOperationFromAccessSequence",
                    h -> ORLANatives.RFID_DeleteOperationFromAccessSequence(h, -1), 0xFFFF_FFFFL),
            row("RFID_GetLastAccessResult", h -> ORLANatives.RFID_GetLastAccessResult(h, new int[1], new int[1])),
            row("RFID_DeletePreFilter", h -> ORLANatives.RFID_DeletePreFilter(h, 0x1_FFFF, -1), 0xFFFF, 0xFFFF_FFFFL),
            row("RFID_RegisterEventNotification",
                    h -> ORLANatives.RFID_RegisterEventNotification(h, RFID_EVENT_TYPE.NXP_EAS_ALARM_EVENT, EVENT),
                    10, 0xFFFF_FFFF_8000_0005L),
            row("RFID_DeregisterEventNotification",
                    h -> ORLANatives.RFID_DeregisterEventNotification(h, RFID_EVENT_TYPE.GPS_DATA_EVENT), 15),
            row("RFID_SetTraceLevel", h -> ORLANatives.RFID_SetTraceLevel(h, Integer.MIN_VALUE), 0x8000_0000L),
            row("RFID_ClearReaderStats", ORLANatives::RFID_ClearReaderStats),
            row("RFID_SetTimeZone", h -> ORLANatives.RFID_SetTimeZone(h, (short) -2), 0xFFFE),
            row("RFID_ResetConfigToFactoryDefaults", ORLANatives::RFID_ResetConfigToFactoryDefaults),
            row("RFID_SaveLlrpConfig", h -> ORLANatives.RFID_SaveLlrpConfig(h, 0x8000_0000_0000_0001L),
                    0x8000_0000_0000_0001L),
            row("RFID_SaveLlrpConfig", h -> ORLANatives.RFID_SaveLlrpConfig(h, -1L), -1L),
            row("RFID_SetAntennaConfig", h -> ORLANatives.RFID_SetAntennaConfig(h, ANTENNA, (short) -1,
                    (short) 0x8001, (short) 2), 0x8003, 0xFFFF, 0x8001, 2),
            row("RFID_SetAntennaMode", h -> ORLANatives.RFID_SetAntennaMode(h, ANTENNA_MODE.ANTENNA_MODE_BISTATIC), 1),
            row("RFID_SetAntennaMode", h -> ORLANatives.RFID_SetAntennaMode(h, ANTENNA_MODE.ANTENNA_MODE_MONOSTATIC), 0),
            row("RFID_EnableReadPoint", h -> ORLANatives.RFID_EnableReadPoint(h, ANTENNA, true), 0x8003, 1),
            row("RFID_SetRFMode", h -> ORLANatives.RFID_SetRFMode(h, (short) 0x8001, -1, 0x1234_5678),
                    0x8001, 0xFFFF_FFFFL, 0x1234_5678),
            row("RFID_SetDutyCycle", h -> ORLANatives.RFID_SetDutyCycle(h, (short) -2), 0xFFFE),
            row("RFID_TurnOffRadioWhenIdle", h -> ORLANatives.RFID_TurnOffRadioWhenIdle(h, 0x8000_0000), 0x8000_0000L),
            row("RFID_SetRadioPowerState", h -> ORLANatives.RFID_SetRadioPowerState(h, true), 1),
            row("RFID_EnableGPIPort", h -> ORLANatives.RFID_EnableGPIPort(h, -2, true), 0xFFFF_FFFEL, 1),
            row("RFID_SetGPOState", h -> ORLANatives.RFID_SetGPOState(h, 0x8000_0001, true), 0x8000_0001L, 1),
            row("RFID_SetGPIDebounceTime", h -> ORLANatives.RFID_SetGPIDebounceTime(h, -9, new int[4]), 0xFFFF_FFF7L),
        };
        int status = -40;
        for (Row r : rows) {
            SimControl.setStatus(r.fn, --status);
            assertEquals(status, r.call.applyAsInt(HANDLE), r.fn);
            long[] args = Call.last(r.fn).args();
            assertEquals(0xFFFF_FFFF_8000_0000L, args[0], r.fn + ": handle sign-extended");
            assertArrayEquals(r.args, Arrays.copyOfRange(args, 1, 1 + r.args.length), r.fn);
        }
        assertNotEquals(0L, Call.last("RFID_InitiateLLRPConnectionFromReader").arg(1), "an output area is given");
        assertNotEquals(0L, Call.last("RFID_SetDutyCycle").arg(2), "a scratch area is passed");
    }
}
