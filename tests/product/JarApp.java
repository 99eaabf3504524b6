import com.kovra.rfid.orla.CONNECTION_INFO;
import com.kovra.rfid.orla.ORLANatives;
import com.kovra.rfid.orla.OrlaLibrary;
import com.kovra.rfid.orla.TAG_DATA;

/**
 * An application as a Java team writes one, compiled against orla-sdk.jar alone: it connects to
 * the reader, runs a short inventory, fetches the tags and prints what it saw. With orla-sim.jar
 * on the class path it runs on the simulated reader, with nothing else set.
 */
public final class JarApp {

    public static void main(String[] args) throws InterruptedException {
        System.out.println("version " + OrlaLibrary.version());
        long[] handle = new long[1];
        check("connect", ORLANatives.RFID_Connect(handle, "localhost", 5084, 0, new CONNECTION_INFO()));
        int reader = (int) handle[0];
        check("inventory", ORLANatives.RFID_PerformInventory(reader, null, null, null));
        Thread.sleep(200);
        check("stop", ORLANatives.RFID_StopInventory(reader));
        TAG_DATA[] batch = new TAG_DATA[64];
        for (int i = 0; i < batch.length; i++) {
            batch[i] = new TAG_DATA();
        }
        int[] count = new int[1];
        int reads = 0;
        do {
            check("fetch", ORLANatives.rfid_GetReadTags(reader, batch.length, batch, count, true));
            reads += count[0];
        } while (count[0] == batch.length);
        check("disconnect", ORLANatives.RFID_DisConnect(reader));
        System.out.println("reads " + reads);
    }

    private static void check(String what, int status) {
        if (status != 0) {
            System.err.println(what + ": status " + status);
            System.exit(1);
        }
    }
}
