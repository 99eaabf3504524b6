package com.kovra.rfid.orla;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertNotEquals;

import com.kovra.rfid.orla.sim.Call;
import com.kovra.rfid.orla.sim.SimControl;
import java.util.LinkedHashMap;
import java.util.Map;
import java.util.function.IntUnaryOperator;
import org.junit.jupiter.api.Test;

/**
 * The natives that hand nothing but the reader handle to their C function
 * (and a few whose other arguments are checked elsewhere): the Java int
 * arrives sign-extended to 64 bits and the reader's status comes back as it
 * stands. Most natives with more arguments check the handle together with
 * the rest of their arguments.
 */
class ForwarderTest extends NativeTest {

    @Test
    void handleIsSignExtendedAndTheStatusReturnedAsItStands() {
        Map<String, IntUnaryOperator> natives = new LinkedHashMap<>();
        natives.put("RFID_Reconnect", ORLANatives::RFID_Reconnect);
        natives.put("RFID_Disconnect", ORLANatives::RFID_DisConnect);
        natives.put("RFID_Logout", ORLANatives::RFID_Logout);
        natives.put("RFID_Restart", ORLANatives::RFID_Restart);
        natives.put("RFID_InitiateLLRPConnectionFromReader", ORLANatives::RFID_InitiateLLRPConnectionFromReader);
        natives.put("RFID_DisconnectLLRPConnectionFromReader", ORLANatives::RFID_DisconnectLLRPConnectionFromReader);
        natives.put("RFID_StopInventory", ORLANatives::RFID_StopInventory);
        natives.put("RFID_PurgeTags", ORLANatives::RFID_PurgeTags);
        natives.put("RFID_StopTagLocationing", ORLANatives::RFID_StopTagLocationing);
        natives.put("RFID_StopNXPEASScan", ORLANatives::RFID_StopNXPEASScan);
        natives.put("RFID_InitializeAccessSequence", ORLANatives::RFID_InitializeAccessSequence);
        natives.put("RFID_StopAccessSequence", ORLANatives::RFID_StopAccessSequence);
        natives.put("RFID_DeinitializeAccessSequence", ORLANatives::RFID_DeinitializeAccessSequence);
        natives.put("RFID_ClearReaderStats", ORLANatives::RFID_ClearReaderStats);
        natives.put("RFID_ResetConfigToFactoryDefaults", ORLANatives::RFID_ResetConfigToFactoryDefaults);
        natives.put("RFID_SetAntennaMode", h -> ORLANatives.RFID_SetAntennaMode(h, ANTENNA_MODE.ANTENNA_MODE_MONOSTATIC));
        natives.put("RFID_GetLastAccessResult", h -> ORLANatives.RFID_GetLastAccessResult(h, new int[1], new int[1]));
        natives.put("RFID_SetAntennaConfig", h -> ORLANatives.RFID_SetAntennaConfig(h, (short) 1, (short) 0, (short) 0,
                (short) 0));
        int status = -40;
        for (Map.Entry<String, IntUnaryOperator> entry : natives.entrySet()) {
            String fn = entry.getKey();
            SimControl.setStatus(fn, --status);
            assertEquals(status, entry.getValue().applyAsInt(0x8000_0000), fn);
            assertEquals(1, SimControl.count(fn), fn);
            assertEquals(0xFFFF_FFFF_8000_0000L, Call.last(fn).arg(0), fn);
        }
        assertEquals(0L, Call.last("RFID_PurgeTags").arg(1), "purge flags are 0");
        assertNotEquals(0L, Call.last("RFID_InitiateLLRPConnectionFromReader").arg(1), "an output area is given");
    }
}
