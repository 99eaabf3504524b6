package com.kovra.rfid.orla;

import java.io.File;
import java.io.IOException;
import java.io.InputStream;
import java.net.URL;
import java.nio.file.Files;
import java.nio.file.Path;
import java.nio.file.StandardCopyOption;
import java.util.Properties;

/**
 * Loads the native libraries of the SDK once per class loader; {@link ORLANatives} calls
 * {@link #load()} itself when it is first used, so an application needs to call it only to load
 * early or to handle a failure in one place.
 *
 * <p>Two libraries are involved: the reader API library {@code libhalyard.so} and the JNI library
 * {@code liborlajni.so}, which needs the former. Each is taken from the first of:
 * <ol>
 * <li>the file named by a system property, absolute or relative to the working directory:
 *     {@code orla.sim} for the reader API library, {@code orla.lib} for the JNI library;</li>
 * <li>the libraries that {@code orla-sim.jar} carries, when it is on the class path: the simulated
 *     reader and a JNI library built against it, extracted to a private temporary directory and
 *     loaded from there (the simulated reader first);</li>
 * <li>the system: the JNI library as {@code orlajni} from {@code java.library.path}, else from the
 *     reader's library directory {@code /platform/lib}, where the device package installs it. It
 *     finds the reader's own {@code libhalyard.so} through its run-time search path
 *     ({@code /platform/lib:/usr/lib:/apps/bin/libs}).</li>
 * </ol>
 * On a reader nothing needs to be set. A failure throws an {@link UnsatisfiedLinkError} that says
 * which file was tried, where its name came from, and why it could not be loaded.
 */
public final class OrlaLibrary {

    /** System property naming the reader API library to load first. */
    public static final String READER_API_PROPERTY = "orla.sim";
    /** System property naming the JNI library. */
    public static final String JNI_LIBRARY_PROPERTY = "orla.lib";

    private static final String READER_API_FILE = "libhalyard.so";
    private static final String JNI_LIBRARY_FILE = "liborlajni.so";
    /** Where orla-sim.jar carries its libraries. */
    private static final String BUNDLE = "/META-INF/orla-jni/linux-x86-64/";
    /** The reader's library directory. */
    private static final File PLATFORM_LIBRARY = new File("/platform/lib", JNI_LIBRARY_FILE);
    private static final String DEVELOPMENT_HINT = "on a development machine, put orla-sim.jar on the class"
            + " path or name the simulated reader with -D" + READER_API_PROPERTY + "=FILE";

    private static boolean loaded;

    private OrlaLibrary() {
    }

    /** Loads the libraries unless this class loader has loaded them already. */
    public static synchronized void load() {
        if (loaded) {
            return;
        }
        String readerApi = property(READER_API_PROPERTY);
        String jniLibrary = property(JNI_LIBRARY_PROPERTY);
        Bundle bundle = new Bundle();
        try {
            if (readerApi != null) {
                loadFile("the reader API library", new File(readerApi), "named by the system property "
                        + READER_API_PROPERTY + "=" + readerApi);
            } else if (bundle.has(READER_API_FILE)) {
                loadFile("the simulated reader", bundle.extract(READER_API_FILE), "from " + bundle.url(READER_API_FILE));
            }
            if (jniLibrary != null) {
                loadFile("the JNI library", new File(jniLibrary), "named by the system property "
                        + JNI_LIBRARY_PROPERTY + "=" + jniLibrary);
            } else if (bundle.has(JNI_LIBRARY_FILE)) {
                loadFile("the JNI library", bundle.extract(JNI_LIBRARY_FILE), "from " + bundle.url(JNI_LIBRARY_FILE));
            } else {
                loadFromLibraryPath();
            }
        } finally {
            bundle.close();
        }
        loaded = true;
    }

    /** The SDK's version ("1.2.3"), or "unknown" when the classes carry none. */
    public static String version() {
        try (InputStream in = OrlaLibrary.class.getResourceAsStream("orla-version.properties")) {
            if (in != null) {
                Properties properties = new Properties();
                properties.load(in);
                String version = properties.getProperty("version");
                if (version != null) {
                    return version;
                }
            }
        } catch (IOException e) {
            // fall back on the manifest
        }
        String version = OrlaLibrary.class.getPackage().getImplementationVersion();
        return version != null ? version : "unknown";
    }

    private static String property(String name) {
        String value = System.getProperty(name);
        return value == null || value.isEmpty() ? null : value;
    }

    private static void loadFile(String what, File file, String origin) {
        File absolute = file.getAbsoluteFile();
        if (!absolute.isFile()) {
            throw failure("cannot load " + what + " " + absolute + " (" + origin + "): "
                    + (absolute.exists() ? "not a regular file" : "no such file"), null);
        }
        try {
            System.load(absolute.getPath());
        } catch (UnsatisfiedLinkError e) {
            throw failure("cannot load " + what + " " + absolute + " (" + origin + "): " + e.getMessage()
                    + needsReaderApi(e), e);
        }
    }

    private static void loadFromLibraryPath() {
        try {
            System.loadLibrary("orlajni");
        } catch (UnsatisfiedLinkError e) {
            if (PLATFORM_LIBRARY.isFile()) {
                loadFile("the JNI library", PLATFORM_LIBRARY, "the reader's library directory");
                return;
            }
            throw failure("cannot load the JNI library " + JNI_LIBRARY_FILE + " from java.library.path or "
                    + PLATFORM_LIBRARY.getParent() + " (" + e.getMessage() + ")" + needsReaderApi(e)
                    + "; name the file with -D" + JNI_LIBRARY_PROPERTY + "=FILE, or " + DEVELOPMENT_HINT, e);
        }
    }

    /** A hint when the JNI library itself was found but the reader API library was not. */
    private static String needsReaderApi(UnsatisfiedLinkError e) {
        String message = String.valueOf(e.getMessage());
        if (!message.contains(READER_API_FILE)) {
            return "";
        }
        return "; " + JNI_LIBRARY_FILE + " needs the reader API library " + READER_API_FILE
                + ", which a reader keeps in /platform/lib; " + DEVELOPMENT_HINT;
    }

    private static UnsatisfiedLinkError failure(String message, Throwable cause) {
        UnsatisfiedLinkError error = new UnsatisfiedLinkError(message);
        if (cause != null) {
            error.initCause(cause);
        }
        return error;
    }

    /**
     * The libraries orla-sim.jar carries, extracted on demand into a temporary directory of this
     * process that only its user can read. The files go once the libraries are loaded.
     */
    private static final class Bundle {
        private Path directory;

        boolean has(String name) {
            return url(name) != null;
        }

        URL url(String name) {
            return OrlaLibrary.class.getResource(BUNDLE + name);
        }

        File extract(String name) {
            try {
                if (directory == null) {
                    directory = Files.createTempDirectory("orla-jni-");
                }
                Path file = directory.resolve(name);
                try (InputStream in = url(name).openStream()) {
                    Files.copy(in, file, StandardCopyOption.REPLACE_EXISTING);
                }
                return file.toFile();
            } catch (IOException e) {
                throw failure("cannot extract " + name + " from " + url(name) + " to a temporary directory: " + e, e);
            }
        }

        /** Deletes the extracted files: the loaded libraries stay mapped. */
        void close() {
            if (directory == null) {
                return;
            }
            File[] files = directory.toFile().listFiles();
            if (files != null) {
                for (File file : files) {
                    file.delete();
                }
            }
            directory.toFile().delete();
        }
    }
}
