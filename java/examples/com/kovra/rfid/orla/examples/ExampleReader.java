package com.kovra.rfid.orla.examples;

import com.kovra.rfid.orla.CONNECTION_INFO;
import com.kovra.rfid.orla.ERROR_INFO;
import com.kovra.rfid.orla.ORLANatives;
import com.kovra.rfid.orla.OrlaLibrary;
import com.kovra.rfid.orla.RFID_STATUS;
import com.kovra.rfid.orla.TAG_DATA;

import java.util.HexFormat;
import java.util.function.Consumer;

/**
 * The frame that every example shares: load the native library, connect to the reader, run the example's
 * steps, report a failed call by its status name and the reader's last error, and disconnect.
 *
 * <p>Each step goes through {@link #check check}: it prints one line, {@code <step>: <status name>}, and on a
 * status other than 0 also the reader's description of the error, then ends the example with exit code 1
 * (no stack trace).
 */
final class ExampleReader implements AutoCloseable {

    /** The reader's LLRP port, the first connection parameter of {@link ORLANatives#RFID_Connect}. */
    private static final int READER_PORT = 5084;
    /** The host name of the simulated reader; any name reaches it. */
    private static final String DEFAULT_HOST = "sim-reader";

    /** One example's steps, given the connected reader. */
    interface Steps {
        void run(ExampleReader reader);
    }

    /** Ends an example after {@link #check check} has reported a failed call. */
    private static final class CallFailed extends RuntimeException {
        private static final long serialVersionUID = 1L;

        CallFailed(String step) {
            super(step, null, false, false);
        }
    }

    /** Tags taken from the reader's buffer per call of rfid_GetReadTags. */
    private static final int BATCH = 32;

    /** The reader handle that every call takes. */
    final int handle;
    /** The tag objects that rfid_GetReadTags fills: it creates none, so they are made once, up front. */
    private final TAG_DATA[] batch = new TAG_DATA[BATCH];

    private ExampleReader(int handle) {
        this.handle = handle;
        for (int i = 0; i < BATCH; i++) {
            batch[i] = new TAG_DATA();
        }
    }

    /**
     * Connects to the reader named by the first argument (the simulated reader by default), runs the steps
     * and disconnects; exits with 0 when every step succeeded, 1 otherwise.
     */
    static void run(String[] args, Steps steps) {
        OrlaLibrary.load();
        String host = args.length > 0 ? args[0] : DEFAULT_HOST;
        long[] handleOut = new long[1];
        int status = ORLANatives.RFID_Connect(handleOut, host, READER_PORT, 0, new CONNECTION_INFO());
        System.out.printf("connect to %s: %s%n", host, statusName(status));
        if (status != 0) {
            // No reader handle yet, so no last error to ask for: the status' description says it all.
            if (status > 0 && status < RFID_STATUS.values().length) {
                System.out.printf("  %s%n", ORLANatives.RFID_GetErrorDescription(RFID_STATUS.values()[status]));
            }
            System.exit(1);
        }
        int exitCode = 0;
        try (ExampleReader reader = new ExampleReader((int) handleOut[0])) {
            steps.run(reader);
        } catch (CallFailed failed) {
            exitCode = 1;
        }
        System.exit(exitCode);
    }

    /**
     * Prints {@code <step>: <status name>}; when the status is not 0, also prints the reader's last error and
     * ends the example.
     *
     * @return the status, which is 0
     */
    int check(String step, int status) {
        System.out.printf("%s: %s%n", step, statusName(status));
        if (status != 0) {
            ERROR_INFO error = new ERROR_INFO();
            if (ORLANatives.RFID_GetLastErrorInfo(handle, error) == 0) {
                System.out.printf("  last error: %s %s%n", error.statusDesc, error.vendorMessage);
            }
            throw new CallFailed(step);
        }
        return status;
    }

    /**
     * Takes every tag the reader has buffered, batch by batch, and hands each to {@code each} (the object is
     * reused by the next batch: copy what you keep).
     *
     * @return the number of tags taken
     */
    int fetchTags(Consumer<TAG_DATA> each) {
        int taken = 0;
        int[] count = new int[1];
        do {
            // The count is written only when the reader delivers tags: reset it before each call, and rely on
            // it rather than on the status (which is that of handing the batch back).
            count[0] = 0;
            ORLANatives.rfid_GetReadTags(handle, BATCH, batch, count, true);
            for (int i = 0; i < count[0]; i++) {
                each.accept(batch[i]);
            }
            taken += count[0];
        } while (count[0] == BATCH);
        return taken;
    }

    /** The name of a status code: the {@link RFID_STATUS} constant, or the number when it has none. */
    static String statusName(int status) {
        RFID_STATUS[] names = RFID_STATUS.values();
        return status >= 0 && status < names.length ? names[status].name() : "status " + status;
    }

    /** Upper-case hexadecimal text of bytes, as the reader returns tag IDs and data. */
    static String hex(byte[] bytes) {
        return HexFormat.of().withUpperCase().formatHex(bytes);
    }

    /** The bytes of hexadecimal text. */
    static byte[] bytes(String hex) {
        return HexFormat.of().parseHex(hex);
    }

    @Override
    public void close() {
        System.out.printf("disconnect: %s%n", statusName(ORLANatives.RFID_DisConnect(handle)));
    }
}
