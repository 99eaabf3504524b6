package com.kovra.rfid.orla.demo;

import com.kovra.rfid.orla.ORLANatives;
import com.kovra.rfid.orla.OrlaLibrary;
import com.kovra.rfid.orla.TAG_DATA;
import com.kovra.rfid.orla.sim.Bytes;
import com.kovra.rfid.orla.sim.SimBench;
import com.kovra.rfid.orla.sim.SimControl;

/**
 * Prints what the library costs on the simulated reader, each figure against its floor, the work
 * a native cannot avoid:
 *
 * <ul>
 *   <li>the tag writer: rfid_GetReadTags for batches of 1, 64 and 256 tags (12-byte EPC, 8 bytes
 *       of memory data), per tag, against the writer's floor ({@link SimBench#writeTagsFloor}: the
 *       same class and field lookups and field sets, no text rendering);
 *   <li>a forwarder: RFID_StopInventory against a JNI native calling an empty C function through
 *       the dynamic linker ({@link SimBench#callEmpty}); the simulator's own handling of the call,
 *       timed inside it, is printed apart and not charged to the library;
 *   <li>an empty JNI native, for scale.
 * </ul>
 *
 * <p>Every figure is the median of several timed runs of about 0.2 s each, with the smallest and
 * largest run. Not a test: figures only. Option {@code --runs N} (default 7).
 */
public final class ReadTagsBench {

    private static final int TAG_RECORD_SIZE = 192;
    private static final double RUN_SECONDS = 0.2;
    private static final String ROW = "%-44s %10s %19s %9s%n";

    /** The median of several runs, in nanoseconds per unit, with the smallest and largest. */
    static final class Figure {
        final double median;
        final double min;
        final double max;

        Figure(double median, double min, double max) {
            this.median = median;
            this.min = min;
            this.max = max;
        }

        static Figure of(double[] runs) {
            double[] sorted = runs.clone();
            java.util.Arrays.sort(sorted);
            int n = sorted.length;
            double median = n % 2 == 1 ? sorted[n / 2] : (sorted[n / 2 - 1] + sorted[n / 2]) / 2;
            return new Figure(median, sorted[0], sorted[n - 1]);
        }

        Figure minus(Figure other) {
            return new Figure(median - other.median, min - other.max, max - other.min);
        }

        String spread() {
            return String.format("%.1f-%.1f", min, max);
        }
    }

    public static void main(String[] args) {
        int runs = RunSupport.intOption(args, "--runs", 7);
        OrlaLibrary.load();
        SimControl.reset();
        SimControl.record(false);
        int reader = RunSupport.connect("bench");
        byte[] record = tagRecord();

        System.out.printf("median of %d runs, ns; spread min-max; ratio of medians%n", runs);
        System.out.printf(ROW, "what", "median", "spread", "x floor");
        Figure bare = measure(runs, 1, SimControl::nop);
        row("empty JNI native", bare, null);

        Figure floor = measure(runs, 1, () -> SimBench.callEmpty(reader));
        Figure simulator = simulatorShare(runs, reader);
        Figure forwarder = measure(runs, 1, () -> ORLANatives.RFID_StopInventory(reader));
        row("forwarder floor: JNI native + empty C call", floor, null);
        row("  simulator's own RFID_StopInventory", simulator, null);
        Figure floorWithSimulator = new Figure(floor.median + simulator.median, floor.min + simulator.min,
                floor.max + simulator.max);
        row("RFID_StopInventory (forwarder)", forwarder, floorWithSimulator);
        row("  library's share (forwarder - both)", forwarder.minus(floorWithSimulator), null);

        for (int batch : new int[] {1, 64, 256}) {
            SimControl.setOutput("rfid_GetReadTags", repeat(record, batch));
            TAG_DATA[] tags = new TAG_DATA[batch];
            for (int i = 0; i < batch; i++) {
                tags[i] = new TAG_DATA();
            }
            int[] count = new int[1];
            Figure writer = measure(runs, batch, () -> ORLANatives.rfid_GetReadTags(reader, batch, tags, count, true));
            if (count[0] != batch || !"300012345678ABCDEF012345".equals(tags[batch - 1].tagID)) {
                throw new IllegalStateException("batch of " + batch + " came back as " + count[0] + " tags");
            }
            Figure writerFloor = measure(runs, batch, () -> SimBench.writeTagsFloor(tags, batch, 7));
            row("tag writer floor, per tag, batch of " + batch, writerFloor, null);
            row("rfid_GetReadTags, per tag, batch of " + batch, writer, writerFloor);
            System.out.printf("%-44s %10.0f%n", "  tags/s", 1e9 / writer.median);
        }
        ORLANatives.RFID_DisConnect(reader);
        SimControl.reset();
    }

    private static void row(String what, Figure figure, Figure floor) {
        System.out.printf(ROW, what, String.format("%.1f", figure.median), figure.spread(),
                floor == null ? "" : String.format("%.2f", figure.median / floor.median));
    }

    /** The simulator's own time per RFID_StopInventory, timed inside it. */
    private static Figure simulatorShare(int runs, int reader) {
        int calls = 200_000;
        SimBench.timeStopInventory(reader, calls);  // warm-up
        double[] perCall = new double[runs];
        for (int r = 0; r < runs; r++) {
            perCall[r] = (double) SimBench.timeStopInventory(reader, calls) / calls;
        }
        return Figure.of(perCall);
    }

    /** A tag record as the reader fills it: 12-byte EPC, 8 bytes of memory data. */
    static byte[] tagRecord() {
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

    /**
     * Times the call in runs of about RUN_SECONDS each, after a warm-up that also sizes the runs;
     * the figure is per unit (a call does units of work, e.g. tags).
     */
    private static Figure measure(int runs, int units, Runnable call) {
        long iterations = 1000;
        while (true) {
            long t0 = System.nanoTime();
            for (long i = 0; i < iterations; i++) {
                call.run();
            }
            if (System.nanoTime() - t0 > RUN_SECONDS * 1e9 / 2) {
                break;
            }
            iterations *= 2;
        }
        double[] perUnit = new double[runs];
        for (int r = 0; r < runs; r++) {
            long t0 = System.nanoTime();
            for (long i = 0; i < iterations; i++) {
                call.run();
            }
            perUnit[r] = (double) (System.nanoTime() - t0) / iterations / units;
        }
        return Figure.of(perUnit);
    }
}
