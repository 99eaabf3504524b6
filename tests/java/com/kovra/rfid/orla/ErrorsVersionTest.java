package com.kovra.rfid.orla;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;

import com.kovra.rfid.orla.sim.Bytes;
import com.kovra.rfid.orla.sim.SimControl;
import java.time.Year;
import java.time.ZoneOffset;
import java.util.function.IntSupplier;
import org.junit.jupiter.api.Test;

/** The last error on a reader, status descriptions, the library version and the trace level. */
class ErrorsVersionTest extends NativeTest {

    private static final String LAST_ERROR = "RFID_GetLastErrorInfoW";

    private static byte[] errorRecord() {
        Bytes.Builder r = new Bytes.Builder(2120);
        int[] members = {2024, 0xFFFF, 0x8000, 31, 23, 59, 58, 999};
        for (int i = 0; i < members.length; i++) {
            r.u16(2 * i, members[i]);
        }
        return r.u32(16, 0x8000_0005L).wide(20, "Invalid parameter", 260).wide(1060, "antenna 3 open", 265).build();
    }

    @Test
    void lastErrorWritesTextsCodeAndSignExtendedTimeStamp() {
        SimControl.setStatus(LAST_ERROR, 0);
        SimControl.setOutput(LAST_ERROR, errorRecord());
        ERROR_INFO info = new ERROR_INFO();
        assertEquals(0, ORLANatives.RFID_GetLastErrorInfo(-3, info));
        assertEquals(0xFFFF_FFFF_FFFF_FFFDL, SimControl.args(LAST_ERROR, -1)[0]);
        assertEquals("Invalid parameter", info.statusDesc);
        assertEquals("antenna 3 open", info.vendorMessage);
        assertEquals(0x8000_0005, info.enumRfidStatusCode);
        assertArrayEquals(new short[] {2024, -1, -32768, 31, 23, 59, 58, 999}, members(info.errorTimeStamp));
    }

    @Test
    void descriptionIsTheTextOfTheOrdinalInFullAndTheVersionItsText() {
        assertEquals("Invalid parameter", ORLANatives.RFID_GetErrorDescription(RFID_STATUS.RFID_API_PARAM_ERROR));
        assertEquals(RFID_STATUS.RFID_API_PARAM_ERROR.ordinal(), SimControl.args("RFID_GetErrorDescriptionW", -1)[0]);

        SimControl.setPointer("RFID_GetErrorDescriptionW", SimControl.allocWide(letters(259)));
        assertEquals(letters(259), ORLANatives.RFID_GetErrorDescription(RFID_STATUS.RFID_OUT_OF_MEMORY),
                "259 bytes and the terminator fill the buffer");
        SimControl.setPointer("RFID_GetErrorDescriptionW", SimControl.allocWide(""));
        assertEquals("", ORLANatives.RFID_GetErrorDescription(RFID_STATUS.RFID_API_SUCCESS));

        VERSION_INFO version = new VERSION_INFO();
        SimControl.setOutput("RFID_GetDllVersionInfoW", new Bytes.Builder(1048).wide(0, "4.2.1-b77", 262).build());
        assertEquals(0, ORLANatives.RFID_GetDllVersionInfo(version));
        assertEquals("4.2.1-b77", version.dllVersion);
    }

    @Test
    void lastErrorIsTheReadersLatestFailureUntilTheNextOne() {
        int handle = connect();
        ERROR_INFO info = new ERROR_INFO();
        assertEquals(0, ORLANatives.RFID_GetLastErrorInfo(handle, info));
        assertEquals(0, info.enumRfidStatusCode, "no failure yet");
        assertEquals("Success", info.statusDesc);
        assertEquals("", info.vendorMessage);

        short year = (short) Year.now(ZoneOffset.UTC).getValue();
        Object[][] failures = {
            // the call, its status, the status's description, the text it leaves
            {(IntSupplier) () -> ORLANatives.RFID_StopInventory(handle), 5, "No operation is running",
                "RFID_StopInventory: no such operation is running"},
            {(IntSupplier) () -> ORLANatives.RFID_DeleteOperationFromAccessSequence(handle, 7), 6, "Not found",
                "RFID_DeleteOperationFromAccessSequence: the access sequence holds no operation 7"},
            {(IntSupplier) () -> ORLANatives.RFID_DeregisterEventNotification(handle, RFID_EVENT_TYPE.GPI_EVENT), 6,
                "Not found", "RFID_DeregisterEventNotification: nothing is registered for event type 0"},
            {(IntSupplier) () -> ORLANatives.RFID_DeletePreFilter(handle, 2, 5), 6, "Not found",
                "RFID_DeletePreFilter: antenna 2 has no pre-filter 5"},
            {(IntSupplier) () -> {
                SimControl.setStatus("RFID_SetTraceLevel", 99);
                return ORLANatives.RFID_SetTraceLevel(handle, 1);
            }, 99, "Unknown status", "RFID_SetTraceLevel: Unknown status"},
        };
        for (Object[] failure : failures) {
            int status = (Integer) failure[1];
            assertEquals(status, ((IntSupplier) failure[0]).getAsInt());
            assertEquals(0, ORLANatives.RFID_GetLastErrorInfo(handle, info));
            assertEquals(status, info.enumRfidStatusCode);
            assertEquals(failure[2], info.statusDesc);
            assertEquals(failure[3], info.vendorMessage);
            assertEquals(year, info.errorTimeStamp.Year, "a UTC time stamp");
        }
        SimControl.setStatus("RFID_SetTraceLevel", 0);
        assertEquals(0, ORLANatives.RFID_SetTraceLevel(handle, 1));
        assertEquals(0, ORLANatives.RFID_GetLastErrorInfo(handle, info));
        assertEquals("RFID_SetTraceLevel: Unknown status", info.vendorMessage, "a success clears nothing");

        int other = connect();
        assertEquals(0, ORLANatives.RFID_GetLastErrorInfo(other, info));
        assertEquals(0, info.enumRfidStatusCode, "per reader");
        assertEquals(INVALID_HANDLE, ORLANatives.RFID_GetLastErrorInfo(-5, info));
    }
}
