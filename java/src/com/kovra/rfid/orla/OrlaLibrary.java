package com.kovra.rfid.orla;

import java.io.File;

/**
 * Loads the native libraries of the SDK once per class loader.
 *
 * <p>When the system property {@code orla.sim} names a file (absolute, or relative to the working
 * directory), that reader API library is loaded first, so that liborlajni.so binds to it rather than to
 * one found on the library path. The JNI library itself is then loaded from the file named by
 * {@code orla.lib}, or else as {@code orlajni} from {@code java.library.path}.
 */
public final class OrlaLibrary {

    private static boolean loaded;

    private OrlaLibrary() {
    }

    public static synchronized void load() {
        if (loaded) {
            return;
        }
        String readerApi = System.getProperty("orla.sim");
        if (readerApi != null && !readerApi.isEmpty()) {
            System.load(new File(readerApi).getAbsolutePath());
        }
        String jniLibrary = System.getProperty("orla.lib");
        if (jniLibrary != null && !jniLibrary.isEmpty()) {
            System.load(new File(jniLibrary).getAbsolutePath());
        } else {
            System.loadLibrary("orlajni");
        }
        loaded = true;
    }
}
