package com.kovra.rfid.orla.demo;

import com.kovra.rfid.orla.CONNECTION_INFO;
import com.kovra.rfid.orla.ORLANatives;
import com.kovra.rfid.orla.OrlaLibrary;
import com.kovra.rfid.orla.TAG_DATA;
import com.kovra.rfid.orla.sim.Bytes;
import com.kovra.rfid.orla.sim.SimControl;

/**
 * Prints what the library costs on the simulated reader: tags per second converted by
 * rfid_GetReadTags for batches of 1, 64 and 256 tags (12-byte EPC, 8 bytes of memory data), the
 * time of a thin forwarder (RFID_StopInventory) and of an empty JNI native (the floor), and the
 * ratio of each to the floor. Not a test: figures only.
 */
public final class ReadTagsBench {

    private static final int TAG_RECORD_SIZE = 192;
    private static final double TARGET_SECONDS = 1.0;

    public static void main(String[] args) {
        OrlaLibrary.load();
        SimControl.reset();
        SimControl.record(false);
        long[] handleOut = new long[1];
        int status = ORLANatives.RFID_Connect(handleOut, "bench", 0, 0, new CONNECTION_INFO());
        if (status != 0) {
            throw new IllegalStateException("connect failed: " + status);
        }
        int reader = (int) handleOut[0];
        byte[] record = tagRecord();

        double floorNs = nsPerCall(SimControl::nop);
        double forwarderNs = nsPerCall(() -> ORLANatives.RFID_StopInventory(reader));
        System.out.printf("%-40s %12s %10s %14s %10s%n", "what", "ns/call", "ns/tag", "tags/s", "x floor");
        System.out.printf("%-40s %12.1f %10s %14s %10.2f%n", "empty JNI native (floor)", floorNs, "-", "-", 1.0);
        System.out.printf("%-40s %12.1f %10s %14s %10.2f%n", "RFID_StopInventory (thin forwarder)", forwarderNs, "-",
                "-", forwarderNs / floorNs);
        for (int batch : new int[] {1, 64, 256}) {
            SimControl.setOutput("rfid_GetReadTags", repeat(record, batch));
            TAG_DATA[] tags = new TAG_DATA[batch];
            for (int i = 0; i < batch; i++) {
                tags[i] = new TAG_DATA();
            }
            int[] count = new int[1];
            double ns = nsPerCall(() -> ORLANatives.rfid_GetReadTags(reader, batch, tags, count, true));
            if (count[0] != batch || !"300012345678ABCDEF012345".equals(tags[batch - 1].tagID)) {
                throw new IllegalStateException("batch of " + batch + " came back as " + count[0] + " tags");
            }
            System.out.printf("%-40s %12.1f %10.1f %14.0f %10.2f%n", "rfid_GetReadTags, batch of " + batch, ns,
                    ns / batch, batch * 1e9 / ns, ns / floorNs);
        }
        ORLANatives.RFID_DisConnect(reader);
        SimControl.reset();
    }

    /** A tag record as the reader fills it: 12-byte EPC, 8 bytes of memory data. */
    private static byte[] tagRecord() {
        long epc = SimControl.alloc(hex("300012345678ABCDEF012345"));
        long data = SimControl.alloc(hex("0102030405060708"));
        return new Bytes.Builder(TAG_RECORD_SIZE)
                .u32(0, TAG_RECORD_SIZE).u32(4, TAG_RECORD_SIZE)
                .ptr(8, epc).u32(16, 12).u32(20, 12)
                .u16(24, 0x3000).u16(32, 0x1234).u16(34, 1)
                .u8(72, 0xC4).u16(74, 7).u16(76, 3)
                .ptr(96, data).u32(104, 0).u32(108, 8).u32(112, 8)
                .build();
    }

    private static byte[] repeat(byte[] record, int times) {
        byte[] all = new byte[record.length * times];
        for (int i = 0; i < times; i++) {
            System.arraycopy(record, 0, all, i * record.length, record.length);
        }
        return all;
    }

    private static byte[] hex(String text) {
        return ReaderDemo.hexToBytes(text);
    }

    /** Runs the call in growing rounds until one round takes about TARGET_SECONDS; best of three. */
    private static double nsPerCall(Runnable call) {
        long iterations = 1000;
        for (int i = 0; i < iterations; i++) {
            call.run();  // warm-up
        }
        while (true) {
            long t0 = System.nanoTime();
            for (long i = 0; i < iterations; i++) {
                call.run();
            }
            long elapsed = System.nanoTime() - t0;
            if (elapsed > TARGET_SECONDS * 1e9 / 4) {
                double best = (double) elapsed / iterations;
                for (int round = 0; round < 2; round++) {
                    t0 = System.nanoTime();
                    for (long i = 0; i < iterations; i++) {
                        call.run();
                    }
                    best = Math.min(best, (double) (System.nanoTime() - t0) / iterations);
                }
                return best;
            }
            iterations *= 4;
        }
    }
}
