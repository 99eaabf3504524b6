package com.kovra.rfid.orla.demo;

import com.kovra.rfid.orla.CONNECTION_INFO;
import com.kovra.rfid.orla.ORLANatives;

/** What the benchmark, stress and soak programs share: connecting, and their options. */
final class RunSupport {

    private RunSupport() {
    }

    /** Connects a simulated reader; returns its handle, or throws with the status. */
    static int connect(String host) {
        long[] handleOut = new long[1];
        int status = ORLANatives.RFID_Connect(handleOut, host, 0, 0, new CONNECTION_INFO());
        if (status != 0) {
            throw new IllegalStateException("connect " + host + " failed: " + status);
        }
        return (int) handleOut[0];
    }

    /** The value after the option name, or the fallback. */
    static int intOption(String[] args, String name, int fallback) {
        for (int i = 0; i + 1 < args.length; i++) {
            if (args[i].equals(name)) {
                return Integer.parseInt(args[i + 1]);
            }
        }
        return fallback;
    }
}
