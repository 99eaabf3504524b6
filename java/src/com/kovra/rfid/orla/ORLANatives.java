package com.kovra.rfid.orla;

/**
 * The native entry points of the SDK: every operation of the reader API as one static method.
 *
 * <p>The class loads the libraries on first use, through {@link OrlaLibrary#load()}. Each method reads
 * the fields of the objects it is given, builds the reader API's records from them, calls the reader API,
 * and writes what the reader returns into objects that the caller created beforehand.
 *
 * <h2 id="conventions">Conventions</h2>
 * <ul>
 * <li><b>Status.</b> Unless a method says otherwise it returns the reader's status code unchanged: 0 is
 * success, any other value is the ordinal of an {@link RFID_STATUS}. After a failure,
 * {@link #RFID_GetLastErrorInfo RFID_GetLastErrorInfo} tells what went wrong and {@link #RFID_GetErrorDescription
 * RFID_GetErrorDescription} gives the text of a status. No method throws an exception.</li>
 * <li><b>Reader handle.</b> {@link #RFID_Connect RFID_Connect}, {@link #RFID_Login RFID_Login} and {@link
 * #RFID_AcceptConnection RFID_AcceptConnection} return a handle in element 0 of a {@code long[]}; every other
 * method takes it as an {@code int} ({@code (int) handle[0]}; only the low 32 bits are significant).</li>
 * <li><b>Results are written only on success.</b> Out-parameters are one-element arrays (element 0 receives
 * the value) or objects of the data classes. They are written only when the status is 0 and are left as they
 * were otherwise. The exceptions say so on their method: {@link #rfid_GetReadTags rfid_GetReadTags},
 * {@link #RFID_GetAntennaConfig RFID_GetAntennaConfig}, {@link #RFID_GetRadioIdleTimeout RFID_GetRadioIdleTimeout}
 * and {@link #RFID_GetReaderCaps RFID_GetReaderCaps}.</li>
 * <li><b>Objects are filled, never created.</b> A method writes into the objects and arrays that the object
 * it is given already holds (the constructors of the data classes create them), and reads every field it
 * needs.</li>
 * <li><b>Enumerations.</b> An enum is sent as its ordinal, which is the reader's value. Values the reader
 * returns arrive in plain {@code int} or {@code short} fields whose names begin with {@code enum}; compare
 * them with an ordinal, for example {@code tag.enumMemoryBank == MEMORY_BANK.MEMORY_BANK_EPC.ordinal()}.</li>
 * <li><b>Tag IDs and tag data.</b> A tag is named by its ID as hexadecimal text without separators (upper or
 * lower case, for example {@code "3000ABCD0123"}) together with {@code tagIDLength}, the ID's length in
 * <em>bytes</em> (half the number of digits). Data the reader returns ({@link TAG_DATA#tagID},
 * {@link TAG_DATA#memoryBankData}) is upper-case hexadecimal text; data sent to a tag is a {@code byte[]}
 * with a length field in bytes. Pattern and mask lengths are in bits.</li>
 * <li><b>Units.</b> Times and time-outs are in milliseconds; offsets and counts of tag memory in bytes unless
 * the field name says bits; signal strength in dBm; transmit power, receive sensitivity and frequency are
 * <em>indices</em> into the tables of {@link READER_CAPS}; passwords are 32-bit (only the low 32 bits of the
 * {@code long} fields are sent).</li>
 * <li><b>Text</b> sent to the reader must be shorter than 260 characters; a longer string is cut without a
 * terminator and the reader reads past it.</li>
 * <li><b>Null</b> is accepted only where a parameter says "may be null", and then means "none". Booleans are
 * sent as 0 or 1 unless noted.</li>
 * <li><b>Threads.</b> The library keeps no state between calls and takes no locks; any thread may call any
 * method. The event waits block only the calling thread.</li>
 * <li><b>Native memory.</b> A few calls leave small blocks in the native heap, each call anew: the time
 * blocks of {@link #RFID_PerformInventory RFID_PerformInventory}, the further-trigger block of every call that
 * takes a {@link TRIGGER_INFO}, the pattern bytes of every filter and pre-filter, the record of each
 * {@link #RFID_SetAntennaRfConfig RFID_SetAntennaRfConfig}, of each operation added to an access sequence and
 * of each secure {@link #RFID_SetLLRPConnectionConfig RFID_SetLLRPConnectionConfig}, and the array pinned by
 * {@link #RFID_SetGPIDebounceTime RFID_SetGPIDebounceTime}.
 * A few hundred bytes a call: harmless for an application, but not for a call in a tight loop.</li>
 * </ul>
 *
 * <h2 id="misuse">Misuse that crashes the virtual machine</h2>
 * The library trusts its arguments: nothing is checked and no exception is raised. These faults corrupt
 * memory or crash the JVM instead:
 * <ul>
 * <li>a null where the documentation does not allow it: an argument, a nested object (such as
 * {@link TAG_DATA#seenTime}, {@link ACCESS_FILTER#structInfo}, {@link TAG_PATTERN#memoryBank},
 * {@link ANTENNA_INFO#antennaList}), an enum field, or an element of an array that a method walks;</li>
 * <li>a count or length larger than its array, which reads or writes past the array's end:
 * {@link ANTENNA_INFO#length}, the bit counts of {@link TAG_PATTERN} and {@link PRE_FILTER},
 * {@code writeDataLength}, {@code maskLength}, {@link AUTHENTICATE_PARAMS#length}, a {@code tagIDLength}
 * smaller than half the digits of the tag ID, a tag array shorter than the tags a batch returns, a
 * {@link READER_CAPS} array smaller than the reader's counts, an array of {@link USER_APP_INFO} longer than the
 * reader's list;</li>
 * <li>arrays of fixed size that are shorter: {@link LOCK_ACCESS_PARAMS#enumPrivilege} (5 elements),
 * {@link CRYPTO_PARAMS#IChallenge} (3), the debounce record of {@link #RFID_SetGPIDebounceTime
 * RFID_SetGPIDebounceTime} (4), and the arrays of {@link EXTRA_TRIGGER_INFO} (7; a shorter one raises {@code
 * ArrayIndexOutOfBoundsException} when the call returns);</li>
 * <li>more antennas than the fixed room of an operation: 12 antenna IDs and 8 operation qualifiers for
 * {@link #RFID_PerformInventory RFID_PerformInventory} and {@link #RFID_PerformTagLocationing
 * RFID_PerformTagLocationing}, 8 and 8 for every other method that takes an {@link ANTENNA_INFO};</li>
 * <li>{@link #RFID_ReadBuffer RFID_ReadBuffer}, which reads its parameter fields through a null reference whatever
 * it is given: do not call it;</li>
 * <li>the three power-negotiation methods ({@link #RFID_GetPowerNegotiationStatus RFID_GetPowerNegotiationStatus},
 * {@link #RFID_SetPowerNegotiationState RFID_SetPowerNegotiationState}, {@link #RFID_GetPowerNegotiationState
 * RFID_GetPowerNegotiationState}) are exported by the library only under C++ symbol names, which the JVM does not
 * bind: calling them throws {@link UnsatisfiedLinkError}.</li>
 * </ul>
 *
 * <h2 id="families">Families</h2>
 * <dl>
 * <dt>Session</dt>
 * <dd>{@link #RFID_Connect RFID_Connect} opens a reader and yields the handle; {@link #RFID_DisConnect
 * RFID_DisConnect} closes it. The management session ({@link #RFID_Login RFID_Login}), the reader-initiated LLRP
 * connection ({@link #RFID_SetLLRPConnectionConfig RFID_SetLLRPConnectionConfig}) and errors, version and trace
 * ({@link #RFID_GetLastErrorInfo RFID_GetLastErrorInfo}) belong here too.</dd>
 * <dt id="events">Events</dt>
 * <dd>Create an event handle with {@link #rfidUtils_CreateEvent rfidUtils_CreateEvent}, register it for an {@link
 * RFID_EVENT_TYPE} with {@link #RFID_RegisterEventNotification RFID_RegisterEventNotification}, wait with {@link
 * #rfidUtils_WaitForSingleObject rfidUtils_WaitForSingleObject} (result 0: signalled, 258: time-out), then fetch
 * what happened: tags with {@link #rfid_GetReadTags rfid_GetReadTags}, other events' data with {@link
 * #RFID_GetEventData RFID_GetEventData}. Close the handle with {@link #rfidUtils_CloseHandle
 * rfidUtils_CloseHandle}.</dd>
 * <dt id="inventory">Inventory and tag retrieval</dt>
 * <dd>{@link #RFID_PerformInventory RFID_PerformInventory} starts reading every tag in the field under a {@link
 * TRIGGER_INFO} (when it starts, when it stops, when tags are reported), optionally on chosen antennas
 * ({@link ANTENNA_INFO}) and reporting only tags that match a {@link POST_FILTER}. The reader buffers the tags;
 * fetch them in batches with {@link #rfid_GetReadTags rfid_GetReadTags} or one at a time with {@link
 * #RFID_GetReadTag RFID_GetReadTag}, stop with {@link #RFID_StopInventory RFID_StopInventory}. Tag locationing and
 * the NXP EAS scan work the same way. Pre-filters ({@link #RFID_AddPreFilter RFID_AddPreFilter}) select the tags
 * that take part at all; tag storage and singulation settings tune the buffer and the Gen2 session.</dd>
 * <dt id="access">Tag access</dt>
 * <dd>Each single operation ({@link #RFID_Read RFID_Read} to {@link #RFID_WriteTagID RFID_WriteTagID}, the NXP and
 * Impinj commands, the Gen2v2 commands) acts on one tag and returns when the reader has finished. All take the
 * same leading arguments: reader handle, tag ID as hexadecimal text and its length in bytes, the operation's
 * parameter object, an optional {@link ACCESS_FILTER} (which tags the operation applies to, may be null) and an
 * optional {@link ANTENNA_INFO} (may be null: the reader's default antennas). Operations that return a tag also
 * take a {@link TAG_DATA} (may be null), filled on status 0 with the tag and the data read
 * ({@link TAG_DATA#memoryBankData}) or the operation's result ({@link TAG_DATA#AccessOperationResult}); two
 * reserved {@code Object} arguments, never read (pass null); and {@code utcTime}, which chooses whether the
 * seen times go to {@link SEEN_TIME#utcTime} (true) or as up-time counts to {@link SEEN_TIME#upTime}
 * (false).</dd>
 * <dt id="sequence">Access sequences</dt>
 * <dd>{@link #RFID_InitializeAccessSequence RFID_InitializeAccessSequence}, then {@link
 * #RFID_AddOperationToAccessSequence RFID_AddOperationToAccessSequence} once per operation, {@link
 * #RFID_PerformAccessSequence RFID_PerformAccessSequence} to apply the operations to every tag the reader
 * singulates, {@link #RFID_StopAccessSequence RFID_StopAccessSequence}, {@link #RFID_GetLastAccessResult
 * RFID_GetLastAccessResult} for the counts, and {@link #RFID_DeinitializeAccessSequence
 * RFID_DeinitializeAccessSequence}.</dd>
 * <dt id="config">Reader configuration</dt>
 * <dd>Capabilities ({@link #RFID_GetReaderCaps RFID_GetReaderCaps}: the tables that the power, sensitivity and
 * frequency indices refer to), antennas ({@link #RFID_GetAntennaRfConfig RFID_GetAntennaRfConfig}), radio, GPIO
 * and the user LED, reader information, clock, statistics and health, profiles, software updates and user
 * applications.</dd>
 * </dl>
 */
public final class ORLANatives {

    static {
        OrlaLibrary.load();
    }

    private ORLANatives() {
    }

    // Connection: open, restore and close a reader session.
    /**
     * Connects to a reader. When {@code connectionInfo.secConnInfo} is set and its {@code secureMode} is true,
     * the connection is secured with the certificates, key and pass phrase it holds (each buffer's size field
     * gives the number of bytes sent; a size larger than its array reads past the array).
     *
     * @param readerHandle one-element array; element 0 receives the reader handle on status 0
     * @param hostName host name or address of the reader (null sends an empty name)
     * @param connectionParameter1 first connection parameter, sent unchanged as an unsigned 32-bit value
     *        (the demo passes the reader's port, 5084)
     * @param connectionParameter2 second connection parameter, sent unchanged as an unsigned 32-bit value
     * @param connectionInfo API version and optional secure connection settings; must not be null
     * @return the status
     */
    public static native int RFID_Connect(long[] readerHandle, String hostName, int connectionParameter1,
            int connectionParameter2, CONNECTION_INFO connectionInfo);
    /**
     * Asks the reader API to restore a lost connection under the same handle.
     *
     * @param readerHandle the reader handle
     * @return the status
     */
    public static native int RFID_Reconnect(int readerHandle);
    /**
     * Closes the connection; the handle is no longer valid afterwards.
     *
     * @param readerHandle the reader handle
     * @return the status
     */
    public static native int RFID_DisConnect(int readerHandle);

    // Login and management session.
    /**
     * Logs in to the reader's management interface, which yields a handle of its own for the configuration
     * methods that need one.
     *
     * @param readerHandle one-element array; element 0 receives the management handle on status 0
     * @param loginInfo host, user name, password, API version and force flag; may be null (the reader API
     *        decides what no login record means)
     * @param readerType kind of reader; must not be null
     * @param loginFlag sent as 0 or 1; its meaning is the reader API's
     * @return the status
     */
    public static native int RFID_Login(long[] readerHandle, LOGIN_INFO loginInfo, READER_TYPE readerType,
            boolean loginFlag);
    /**
     * Ends the management session.
     *
     * @param readerHandle the management handle from {@link #RFID_Login RFID_Login}
     * @return the status
     */
    public static native int RFID_Logout(int readerHandle);
    /**
     * Restarts the reader.
     *
     * @param readerHandle the management handle from {@link #RFID_Login RFID_Login}
     * @return the status
     */
    public static native int RFID_Restart(int readerHandle);

    // LLRP connection initiated by the reader.
    /**
     * Reads the reader's LLRP connection configuration: whether the reader acts as client, the host server
     * address and port. On status 0 writes {@code isClient}, {@code hostServerIP} and {@code port}, and the
     * two flags of {@code pSecureModeConfig} when the reader reports a secure configuration (the object is
     * left alone otherwise, and must exist in that case).
     *
     * @param readerHandle the reader handle
     * @param config receives the configuration; must not be null
     * @return the status
     */
    public static native int RFID_GetLLRPConnectionConfig(int readerHandle, LLRP_CONNECTION_CONFIG config);
    /**
     * Sets the reader's LLRP connection configuration. The secure settings are sent only when
     * {@code config.pSecureModeConfig.secureMode} is true.
     *
     * @param readerHandle the reader handle
     * @param config the configuration; neither it nor its {@code pSecureModeConfig} may be null
     * @return the status
     */
    public static native int RFID_SetLLRPConnectionConfig(int readerHandle, LLRP_CONNECTION_CONFIG config);
    /**
     * Makes the reader open its configured LLRP connection.
     *
     * @param readerHandle the reader handle
     * @return the status
     */
    public static native int RFID_InitiateLLRPConnectionFromReader(int readerHandle);
    /**
     * Makes the reader drop the LLRP connection it opened.
     *
     * @param readerHandle the reader handle
     * @return the status
     */
    public static native int RFID_DisconnectLLRPConnectionFromReader(int readerHandle);
    /**
     * Accepts a connection that a reader initiates. Only {@code acceptInfo.rfidVersion} is sent:
     * {@code timeoutMilliseconds} is read but does not reach the reader.
     *
     * @param readerHandle one-element array; element 0 receives the reader handle on status 0
     * @param acceptParameter passed to the reader API unchanged
     * @param acceptInfo API version; must not be null
     * @return the status
     */
    public static native int RFID_AcceptConnection(long[] readerHandle, long acceptParameter,
            ACCEPT_CONNECTION_INFO acceptInfo);

    // Event handles (created and waited on in groups as long, used singly as int) and reader events.
    /**
     * Creates an event handle for the <a href="#events">events</a> of a reader. Keep the {@code long} for
     * {@link #rfidUtils_WaitForMultipleObjects rfidUtils_WaitForMultipleObjects}; the methods that take a single
     * handle take it as an {@code int} (only its low 32 bits are used).
     *
     * @param unused not used
     * @param manualReset non-zero for an event that stays signalled until {@link #rfidUtils_ResetEvent
     *        rfidUtils_ResetEvent}, 0 for one that a successful wait resets
     * @param initialState non-zero to create the event signalled
     * @return the new event handle (not a status)
     */
    public static native long rfidUtils_CreateEvent(int unused, int manualReset, int initialState);
    /**
     * Signals an event, which wakes the threads waiting on it.
     *
     * @param eventHandle the event handle
     * @return the reader API's result
     */
    public static native int rfidUtils_SetEvent(int eventHandle);
    /**
     * Puts an event back into the non-signalled state.
     *
     * @param eventHandle the event handle
     * @return the reader API's result
     */
    public static native int rfidUtils_ResetEvent(int eventHandle);
    /**
     * Releases an event handle. Deregister it from the reader first.
     *
     * @param eventHandle the event handle
     * @return the reader API's result
     */
    public static native int rfidUtils_CloseHandle(int eventHandle);
    /**
     * Blocks the calling thread until the event is signalled or the time-out passes.
     *
     * @param eventHandle the event handle
     * @param timeoutMilliseconds how long to wait, in milliseconds
     * @return 0 when the event was signalled, 258 on time-out
     */
    public static native int rfidUtils_WaitForSingleObject(int eventHandle, int timeoutMilliseconds);
    /**
     * Blocks the calling thread until one (or all) of several events is signalled or the time-out passes.
     *
     * @param count number of handles to wait on; at most the length of {@code eventHandles}
     * @param eventHandles the event handles as {@link #rfidUtils_CreateEvent rfidUtils_CreateEvent} returned them;
     *        may be null only when {@code count} is 0
     * @param waitAll true to wait until all are signalled, false for the first one
     * @param timeoutMilliseconds how long to wait, in milliseconds
     * @return when waiting for any, 0 plus the index of the signalled handle; when waiting for all, 0; 258 on
     *         time-out
     */
    public static native int rfidUtils_WaitForMultipleObjects(int count, long[] eventHandles, boolean waitAll,
            int timeoutMilliseconds);
    /**
     * Registers an event handle for one type of reader event: the reader signals it whenever such an event
     * occurs.
     *
     * @param readerHandle the reader handle
     * @param eventType the event type; must not be null
     * @param eventHandle the event handle (from {@link #rfidUtils_CreateEvent rfidUtils_CreateEvent})
     * @return the status
     */
    public static native int RFID_RegisterEventNotification(int readerHandle, RFID_EVENT_TYPE eventType,
            int eventHandle);
    /**
     * Stops signalling events of one type.
     *
     * @param readerHandle the reader handle
     * @param eventType the event type; must not be null
     * @return the status
     */
    public static native int RFID_DeregisterEventNotification(int readerHandle, RFID_EVENT_TYPE eventType);
    /**
     * Fetches the data of the last event of one type into the fields of {@code eventData} that belong to that
     * type (see {@link EVENT_DATA}), on status 0. The types without data ({@code TAG_READ_EVENT},
     * {@code BUFFER_FULL_WARNING_EVENT}, the inventory and access start and stop events,
     * {@code BUFFER_FULL_EVENT}, {@code DEBUG_INFO_EVENT} and {@code GPS_DATA_EVENT}) return 0 at once and
     * write nothing: tags are fetched with {@link #rfid_GetReadTags rfid_GetReadTags}.
     *
     * @param readerHandle the reader handle
     * @param eventType the event type; must not be null
     * @param eventData receives the event's data; must not be null
     * @return the status, or 0 for the types without data
     */
    public static native int RFID_GetEventData(int readerHandle, RFID_EVENT_TYPE eventType, EVENT_DATA eventData);

    // Errors, version and trace.
    /**
     * Fetches the details of the last error on a reader: on status 0 writes {@code statusDesc},
     * {@code vendorMessage}, {@code enumRfidStatusCode} and {@code errorTimeStamp}.
     *
     * @param readerHandle the reader handle
     * @param errorInfo receives the details; must not be null
     * @return the status of the query itself
     */
    public static native int RFID_GetLastErrorInfo(int readerHandle, ERROR_INFO errorInfo);
    /**
     * Returns the reader API's description of a status code.
     *
     * @param status the status; must not be null ({@code RFID_STATUS.values()[code]} turns a returned code
     *        into one)
     * @return the description; never a status
     */
    public static native String RFID_GetErrorDescription(RFID_STATUS status);
    /**
     * Fetches the version of the reader API library; on status 0 writes {@code dllVersion}.
     *
     * @param versionInfo receives the version; must not be null
     * @return the status
     */
    public static native int RFID_GetDllVersionInfo(VERSION_INFO versionInfo);
    /**
     * Sets how much the reader API traces.
     *
     * @param readerHandle the reader handle
     * @param traceLevel the trace level, sent unchanged
     * @return the status
     */
    public static native int RFID_SetTraceLevel(int readerHandle, int traceLevel);

    // Tag records held by Java and tag retrieval.
    /**
     * Allocates a tag record in the reader API, for {@link #RFID_GetReadTag RFID_GetReadTag}. Release it with
     * {@link #RFID_DeallocateTag RFID_DeallocateTag}.
     *
     * @param readerHandle the reader handle
     * @return the record's address (0 when none could be allocated); not a status
     */
    public static native long RFID_AllocateTag(int readerHandle);
    /**
     * Releases a tag record from {@link #RFID_AllocateTag RFID_AllocateTag}.
     *
     * @param readerHandle the reader handle
     * @param tagRecord the record's address
     * @return the status
     */
    public static native int RFID_DeallocateTag(int readerHandle, long tagRecord);
    /**
     * Takes the next buffered tag into the tag record and, on status 0, copies it into {@code tagData}.
     * {@link #rfid_GetReadTags rfid_GetReadTags} does the same for a batch in one call.
     *
     * @param readerHandle the reader handle
     * @param tagData receives the tag; must not be null
     * @param tagRecord a record from {@link #RFID_AllocateTag RFID_AllocateTag}, reused from call to call
     * @param utcTime true for the seen times as {@link SEEN_TIME#utcTime}, false as up-time counts in
     *        {@link SEEN_TIME#upTime}
     * @return the status
     */
    public static native int RFID_GetReadTag(int readerHandle, TAG_DATA tagData, long tagRecord, boolean utcTime);
    /**
     * Takes up to {@code maxCount} buffered tags at once. When the reader delivers them, their number goes to
     * {@code tagCount[0]} and tags 0 to {@code tagCount[0] - 1} of {@code tags} are filled; the others are
     * left alone. When the reader cannot deliver, {@code tagCount[0]} is left unchanged, so set it to 0 before
     * the call and read the count rather than the status.
     *
     * @param readerHandle the reader handle
     * @param maxCount the most tags to take; at most {@code tags.length}
     * @param tags constructed tag objects, at least {@code maxCount} of them (a null element among those
     *        filled crashes the JVM)
     * @param tagCount one-element array; element 0 receives the number of tags taken
     * @param utcTime as for {@link #RFID_GetReadTag RFID_GetReadTag}
     * @return the status of handing the batch back to the reader, which is 0 even when no tag was delivered;
     *         not the status of the fetch
     */
    public static native int rfid_GetReadTags(int readerHandle, int maxCount, TAG_DATA[] tags, int[] tagCount,
            boolean utcTime);

    // Inventory, tag locationing and NXP EAS scan.
    /**
     * Starts an <a href="#inventory">inventory</a>: the reader reads the tags in its field and buffers them
     * until {@link #RFID_StopInventory RFID_StopInventory} or the stop trigger. Fetch the tags with {@link
     * #rfid_GetReadTags rfid_GetReadTags} when the {@code TAG_READ_EVENT} is signalled.
     *
     * @param readerHandle the reader handle
     * @param postFilter reports only the tags that match; may be null (all tags)
     * @param antennaInfo the antennas to use, at most 12 (8 with operation qualifiers); may be null (the
     *        reader's default)
     * @param triggerInfo start, stop and report triggers; may be null (start now, run until stopped)
     * @return the status
     */
    public static native int RFID_PerformInventory(int readerHandle, POST_FILTER postFilter, ANTENNA_INFO antennaInfo,
            TRIGGER_INFO triggerInfo);
    /**
     * Stops a running inventory; the tags read stay buffered for retrieval.
     *
     * @param readerHandle the reader handle
     * @return the status
     */
    public static native int RFID_StopInventory(int readerHandle);
    /**
     * Discards every buffered tag.
     *
     * @param readerHandle the reader handle
     * @return the status
     */
    public static native int RFID_PurgeTags(int readerHandle);
    /**
     * Starts locating one tag; the tags reported carry {@link TAG_DATA#location}. Stop with
     * {@link #RFID_StopTagLocationing RFID_StopTagLocationing}.
     *
     * @param readerHandle the reader handle
     * @param tagID the tag's ID as hexadecimal text
     * @param tagIDLength the ID's length in bytes, at least half the number of digits
     * @param antennaInfo the antennas to use, at most 12 (8 with operation qualifiers); may be null
     * @return the status
     */
    public static native int RFID_PerformTagLocationing(int readerHandle, String tagID, int tagIDLength,
            ANTENNA_INFO antennaInfo);
    /**
     * Stops locating a tag.
     *
     * @param readerHandle the reader handle
     * @return the status
     */
    public static native int RFID_StopTagLocationing(int readerHandle);
    /**
     * Starts an NXP EAS (electronic article surveillance) scan; tags whose EAS bit is set raise the
     * {@code NXP_EAS_ALARM_EVENT}. Stop with {@link #RFID_StopNXPEASScan RFID_StopNXPEASScan}.
     *
     * @param readerHandle the reader handle
     * @param antennaInfo the antennas to use, at most 8; may be null
     * @param triggerInfo start and stop triggers; may be null
     * @return the status
     */
    public static native int RFID_PerformNXPEASScan(int readerHandle, ANTENNA_INFO antennaInfo,
            TRIGGER_INFO triggerInfo);
    /**
     * Stops an NXP EAS scan.
     *
     * @param readerHandle the reader handle
     * @return the status
     */
    public static native int RFID_StopNXPEASScan(int readerHandle);

    // Pre-filters.
    /**
     * Adds a pre-filter on an antenna: a Gen2 select rule, applied before singulation, that decides which
     * tags take part in inventories at all. {@code tagPatternBitCount} is in bits; {@code tagPattern} must
     * hold at least that many bits.
     *
     * @param readerHandle the reader handle
     * @param antennaID the antenna, sent as an unsigned 16-bit value
     * @param preFilter the filter; must not be null
     * @param filterIndex one-element array, not null; element 0 receives the new filter's index on status 0
     * @return the status
     */
    public static native int RFID_AddPreFilter(int readerHandle, int antennaID, PRE_FILTER preFilter,
            int[] filterIndex);
    /**
     * Deletes a pre-filter.
     *
     * @param readerHandle the reader handle
     * @param antennaID the antenna, sent as an unsigned 16-bit value
     * @param filterIndex the index that {@link #RFID_AddPreFilter RFID_AddPreFilter} returned
     * @return the status
     */
    public static native int RFID_DeletePreFilter(int readerHandle, int antennaID, int filterIndex);

    // Tag storage and singulation.
    /**
     * Reads how many tags, and how many ID and memory bytes of each, the reader buffers; on status 0 writes
     * all six fields.
     *
     * @param readerHandle the reader handle
     * @param settings receives the settings; must not be null
     * @return the status
     */
    public static native int RFID_GetTagStorageSettings(int readerHandle, TAG_STORAGE_SETTINGS settings);
    /**
     * Sets the tag buffer's limits and options.
     *
     * @param readerHandle the reader handle
     * @param settings the settings; must not be null
     * @return the status
     */
    public static native int RFID_SetTagStorageSettings(int readerHandle, TAG_STORAGE_SETTINGS settings);
    /**
     * Reads how an antenna singulates tags. On status 0 writes {@code tagPopulation},
     * {@code tagTransitTimeMilliseconds} and the ordinals {@code enumSession},
     * {@code stateAwareSingulationAction.enumInventoryState} and {@code enumSLFlag}, and
     * {@code stateAwareSingulationAction.perform}; the enum fields {@code session}, {@code inventoryState} and
     * {@code slFlag} are left alone.
     *
     * @param readerHandle the reader handle
     * @param antennaID the antenna, sent as an unsigned 16-bit value
     * @param control receives the settings; neither it nor its {@code stateAwareSingulationAction} may be null
     * @return the status
     */
    public static native int RFID_GetSingulationControl(int readerHandle, int antennaID, SINGULATION_CONTROL control);
    /**
     * Sets how an antenna singulates tags: Gen2 session, expected tag population, transit time in
     * milliseconds and the state-aware action, all read from the enum fields {@code session},
     * {@code inventoryState} and {@code slFlag} (not from the {@code enum...} fields).
     *
     * @param readerHandle the reader handle
     * @param antennaID the antenna, sent as an unsigned 16-bit value
     * @param control the settings; no field of it may be null
     * @return the status
     */
    public static native int RFID_SetSingulationControl(int readerHandle, int antennaID, SINGULATION_CONTROL control);

    // Single Gen2 access operations. The two Object arguments of the tag-returning
    // operations are reserved and never read; Object is this SDK's choice of type.
    /**
     * Reads {@code byteCount} bytes at {@code byteOffset} of a memory bank of one tag (a
     * <a href="#access">tag access</a> operation). On status 0 the data goes to
     * {@link TAG_DATA#memoryBankData} of {@code tagData} as hexadecimal text, with the rest of the tag.
     *
     * @param readerHandle the reader handle
     * @param tagID the tag's ID as hexadecimal text
     * @param tagIDLength the ID's length in bytes
     * @param params bank, offset and count in bytes, access password; may be null (the reader API decides)
     * @param accessFilter the tags the operation applies to; may be null
     * @param antennaInfo the antennas to use, at most 8; may be null
     * @param tagData receives the tag and the data read on status 0; may be null (nothing is returned)
     * @param reserved1 never read; pass null
     * @param reserved2 never read; pass null
     * @param utcTime true for the seen times in {@link SEEN_TIME#utcTime}, false in {@link SEEN_TIME#upTime}
     * @return the status
     */
    public static native int RFID_Read(int readerHandle, String tagID, int tagIDLength, READ_ACCESS_PARAMS params,
            ACCESS_FILTER accessFilter, ANTENNA_INFO antennaInfo, TAG_DATA tagData, Object reserved1,
            Object reserved2, boolean utcTime);
    /**
     * Writes {@code writeDataLength} bytes of {@code writeData} at {@code byteOffset} of a memory bank (a
     * <a href="#access">tag access</a> operation). {@code writeData} must hold at least
     * {@code writeDataLength} bytes.
     *
     * @param readerHandle the reader handle
     * @param tagID the tag's ID as hexadecimal text
     * @param tagIDLength the ID's length in bytes
     * @param params bank, offset, data and access password; may be null
     * @param accessFilter the tags the operation applies to; may be null
     * @param antennaInfo the antennas to use, at most 8; may be null
     * @return the status
     */
    public static native int RFID_Write(int readerHandle, String tagID, int tagIDLength, WRITE_ACCESS_PARAMS params,
            ACCESS_FILTER accessFilter, ANTENNA_INFO antennaInfo);
    /**
     * Writes like {@link #RFID_Write RFID_Write}, with the Gen2 block write command.
     *
     * @param readerHandle the reader handle
     * @param tagID the tag's ID as hexadecimal text
     * @param tagIDLength the ID's length in bytes
     * @param params bank, offset, data and access password; may be null
     * @param accessFilter the tags the operation applies to; may be null
     * @param antennaInfo the antennas to use, at most 8; may be null
     * @return the status
     */
    public static native int RFID_BlockWrite(int readerHandle, String tagID, int tagIDLength,
            WRITE_ACCESS_PARAMS params, ACCESS_FILTER accessFilter, ANTENNA_INFO antennaInfo);
    /**
     * Erases {@code byteCount} bytes at {@code byteOffset} of a memory bank (a
     * <a href="#access">tag access</a> operation).
     *
     * @param readerHandle the reader handle
     * @param tagID the tag's ID as hexadecimal text
     * @param tagIDLength the ID's length in bytes
     * @param params bank, offset and count in bytes, access password; may be null
     * @param accessFilter the tags the operation applies to; may be null
     * @param antennaInfo the antennas to use, at most 8; may be null
     * @return the status
     */
    public static native int RFID_BlockErase(int readerHandle, String tagID, int tagIDLength,
            BLOCK_ERASE_ACCESS_PARAMS params, ACCESS_FILTER accessFilter, ANTENNA_INFO antennaInfo);
    /**
     * Sets the lock privileges of a tag's five lockable fields (a <a href="#access">tag access</a>
     * operation); {@link LOCK_ACCESS_PARAMS#enumPrivilege} must hold five elements.
     *
     * @param readerHandle the reader handle
     * @param tagID the tag's ID as hexadecimal text
     * @param tagIDLength the ID's length in bytes
     * @param params the privileges and the access password; may be null
     * @param accessFilter the tags the operation applies to; may be null
     * @param antennaInfo the antennas to use, at most 8; may be null
     * @return the status
     */
    public static native int RFID_Lock(int readerHandle, String tagID, int tagIDLength, LOCK_ACCESS_PARAMS params,
            ACCESS_FILTER accessFilter, ANTENNA_INFO antennaInfo);
    /**
     * Kills a tag for good with its kill password (a <a href="#access">tag access</a> operation).
     *
     * @param readerHandle the reader handle
     * @param tagID the tag's ID as hexadecimal text
     * @param tagIDLength the ID's length in bytes
     * @param params the kill password; may be null
     * @param accessFilter the tags the operation applies to; may be null
     * @param antennaInfo the antennas to use, at most 8; may be null
     * @return the status
     */
    public static native int RFID_Kill(int readerHandle, String tagID, int tagIDLength, KILL_ACCESS_PARAMS params,
            ACCESS_FILTER accessFilter, ANTENNA_INFO antennaInfo);
    /**
     * Permanently locks blocks of a memory bank, or with {@code readLock} reads their permalock state (a
     * <a href="#access">tag access</a> operation). {@code mask} must hold at least {@code maskLength} bytes.
     *
     * @param readerHandle the reader handle
     * @param tagID the tag's ID as hexadecimal text
     * @param tagIDLength the ID's length in bytes
     * @param params bank, offset and count, mask and access password; may be null
     * @param accessFilter the tags the operation applies to; may be null
     * @param antennaInfo the antennas to use, at most 8; may be null
     * @param tagData receives the tag on status 0; may be null
     * @param reserved1 never read; pass null
     * @param reserved2 never read; pass null
     * @param utcTime true for the seen times in {@link SEEN_TIME#utcTime}, false in {@link SEEN_TIME#upTime}
     * @return the status
     */
    public static native int RFID_BlockPermalock(int readerHandle, String tagID, int tagIDLength,
            BLOCK_PERMALOCK_ACCESS_PARAMS params, ACCESS_FILTER accessFilter, ANTENNA_INFO antennaInfo,
            TAG_DATA tagData, Object reserved1, Object reserved2, boolean utcTime);
    /**
     * Recommissions a tag (a <a href="#access">tag access</a> operation).
     *
     * @param readerHandle the reader handle
     * @param tagID the tag's ID as hexadecimal text
     * @param tagIDLength the ID's length in bytes
     * @param params the kill password and the recommission operation; may be null
     * @param accessFilter the tags the operation applies to; may be null
     * @param antennaInfo the antennas to use, at most 8; may be null
     * @return the status
     */
    public static native int RFID_Recommission(int readerHandle, String tagID, int tagIDLength,
            RECOMMISSION_ACCESS_PARAMS params, ACCESS_FILTER accessFilter, ANTENNA_INFO antennaInfo);
    /**
     * Writes a tag's access password ({@code writeDataLength} bytes of {@code writeData}, normally 4). Unlike
     * the other <a href="#access">tag access</a> operations it takes no access filter.
     *
     * @param readerHandle the reader handle
     * @param tagID the tag's ID as hexadecimal text
     * @param tagIDLength the ID's length in bytes
     * @param params the new value and the current access password; may be null
     * @param antennaInfo the antennas to use, at most 8; may be null
     * @return the status
     */
    public static native int RFID_WriteAccessPassword(int readerHandle, String tagID, int tagIDLength,
            WRITE_FIELD_ACCESS_PARAMS params, ANTENNA_INFO antennaInfo);
    /**
     * Writes a tag's kill password, like {@link #RFID_WriteAccessPassword RFID_WriteAccessPassword}.
     *
     * @param readerHandle the reader handle
     * @param tagID the tag's ID as hexadecimal text
     * @param tagIDLength the ID's length in bytes
     * @param params the new value and the current access password; may be null
     * @param antennaInfo the antennas to use, at most 8; may be null
     * @return the status
     */
    public static native int RFID_WriteKillPassword(int readerHandle, String tagID, int tagIDLength,
            WRITE_FIELD_ACCESS_PARAMS params, ANTENNA_INFO antennaInfo);
    /**
     * Writes a new tag ID, like {@link #RFID_WriteAccessPassword RFID_WriteAccessPassword}; {@code
     * writeDataLength} is the new ID's length in bytes.
     *
     * @param readerHandle the reader handle
     * @param tagID the tag's current ID as hexadecimal text
     * @param tagIDLength the current ID's length in bytes
     * @param params the new ID and the access password; may be null
     * @param antennaInfo the antennas to use, at most 8; may be null
     * @return the status
     */
    public static native int RFID_WriteTagID(int readerHandle, String tagID, int tagIDLength,
            WRITE_FIELD_ACCESS_PARAMS params, ANTENNA_INFO antennaInfo);

    // NXP and Impinj chip commands.
    /**
     * Sets an NXP tag's read protection (a <a href="#access">tag access</a> operation). A {@code tagIDLength}
     * of 0 sends no tag ID (the access filter then selects the tags); it must not be negative.
     *
     * @param readerHandle the reader handle
     * @param tagID the tag's ID as hexadecimal text; not read when {@code tagIDLength} is 0
     * @param tagIDLength the ID's length in bytes
     * @param params the access password; may be null
     * @param accessFilter the tags the operation applies to; may be null
     * @param antennaInfo the antennas to use, at most 8; may be null
     * @return the status
     */
    public static native int RFID_NXPReadProtect(int readerHandle, String tagID, int tagIDLength,
            NXP_READ_PROTECT_PARAMS params, ACCESS_FILTER accessFilter, ANTENNA_INFO antennaInfo);
    /**
     * Resets the read protection of the NXP tags in the field; it names no tag and takes no filter.
     *
     * @param readerHandle the reader handle
     * @param params the access password; may be null
     * @param antennaInfo the antennas to use, at most 8; may be null
     * @return the status
     */
    public static native int RFID_NXPResetReadProtect(int readerHandle, NXP_RESET_READ_PROTECT_PARAMS params,
            ANTENNA_INFO antennaInfo);
    /**
     * Sets or clears an NXP tag's EAS bit (a <a href="#access">tag access</a> operation). A
     * {@code tagIDLength} of 0 or less sends no tag ID.
     *
     * @param readerHandle the reader handle
     * @param tagID the tag's ID as hexadecimal text; not read when {@code tagIDLength} is 0 or less
     * @param tagIDLength the ID's length in bytes
     * @param params the EAS state and the access password; may be null
     * @param accessFilter the tags the operation applies to; may be null
     * @param antennaInfo the antennas to use, at most 8; may be null
     * @return the status
     */
    public static native int RFID_NXPSetEAS(int readerHandle, String tagID, int tagIDLength, NXP_SET_EAS_PARAMS params,
            ACCESS_FILTER accessFilter, ANTENNA_INFO antennaInfo);
    /**
     * Toggles bits of an NXP tag's configuration word (a <a href="#access">tag access</a> operation). On
     * status 0 the resulting word goes to {@code tagData.AccessOperationResult.value.nxpChangeConfigWordResult}.
     * A {@code tagIDLength} of 0 or less sends no tag ID.
     *
     * @param readerHandle the reader handle
     * @param tagID the tag's ID as hexadecimal text; not read when {@code tagIDLength} is 0 or less
     * @param tagIDLength the ID's length in bytes
     * @param params the 16 configuration bits and the access password; may be null
     * @param accessFilter the tags the operation applies to; may be null
     * @param antennaInfo the antennas to use, at most 8; may be null
     * @param tagData receives the tag and the result on status 0; may be null
     * @param reserved1 never read; pass null
     * @param reserved2 never read; pass null
     * @param utcTime true for the seen times in {@link SEEN_TIME#utcTime}, false in {@link SEEN_TIME#upTime}
     * @return the status
     */
    public static native int RFID_NXPChangeConfig(int readerHandle, String tagID, int tagIDLength,
            NXP_CHANGE_CONFIG_PARAMS params, ACCESS_FILTER accessFilter, ANTENNA_INFO antennaInfo, TAG_DATA tagData,
            Object reserved1, Object reserved2, boolean utcTime);
    /**
     * Writes an Impinj tag's QT control word (public or private memory profile), for now or persistently (a
     * <a href="#access">tag access</a> operation). A {@code tagIDLength} of 0 or less sends no tag ID.
     *
     * @param readerHandle the reader handle
     * @param tagID the tag's ID as hexadecimal text; not read when {@code tagIDLength} is 0 or less
     * @param tagIDLength the ID's length in bytes
     * @param params the QT control word, persistence and access password; may be null, but its
     *        {@code qtData} must not be
     * @param accessFilter the tags the operation applies to; may be null
     * @param antennaInfo the antennas to use, at most 8; may be null
     * @return the status
     */
    public static native int RFID_ImpinjQTWrite(int readerHandle, String tagID, int tagIDLength,
            IMPINJ_QT_WRITE_PARAMS params, ACCESS_FILTER accessFilter, ANTENNA_INFO antennaInfo);
    /**
     * Reads an Impinj tag's QT control word (a <a href="#access">tag access</a> operation); on status 0 it goes
     * to {@code tagData.AccessOperationResult.value.qtData}. A {@code tagIDLength} of 0 or less sends no tag
     * ID.
     *
     * @param readerHandle the reader handle
     * @param tagID the tag's ID as hexadecimal text; not read when {@code tagIDLength} is 0 or less
     * @param tagIDLength the ID's length in bytes
     * @param params the access password; may be null
     * @param accessFilter the tags the operation applies to; may be null
     * @param antennaInfo the antennas to use, at most 8; may be null
     * @param tagData receives the tag and the control word on status 0; may be null
     * @param reserved1 never read; pass null
     * @param reserved2 never read; pass null
     * @param utcTime true for the seen times in {@link SEEN_TIME#utcTime}, false in {@link SEEN_TIME#upTime}
     * @return the status
     */
    public static native int RFID_ImpinjQTRead(int readerHandle, String tagID, int tagIDLength,
            IMPINJ_QT_READ_PARAMS params, ACCESS_FILTER accessFilter, ANTENNA_INFO antennaInfo, TAG_DATA tagData,
            Object reserved1, Object reserved2, boolean utcTime);

    // Gen2v2 security commands (the authenticate method keeps its historical spelling).
    /**
     * Sends a Gen2v2 authenticate message to a tag (a <a href="#access">tag access</a> operation; the name
     * keeps its historical spelling). {@code params.length} is the message length in bits; {@code length / 8}
     * bytes of {@code pMessage} are sent, so it must hold at least that many. On status 0 the tag's reply
     * goes to {@code tagData.AccessOperationResult.value.authenticateReadBufferResult} as hexadecimal text.
     *
     * @param readerHandle the reader handle
     * @param tagID the tag's ID as hexadecimal text
     * @param tagIDLength the ID's length in bytes
     * @param params the message, suite indicator and flags; must not be null
     * @param accessFilter the tags the operation applies to; may be null
     * @param antennaInfo the antennas to use, at most 8; may be null
     * @param tagData receives the tag and the reply on status 0; may be null
     * @param reserved1 never read; pass null
     * @param reserved2 never read; pass null
     * @param utcTime true for the seen times in {@link SEEN_TIME#utcTime}, false in {@link SEEN_TIME#upTime}
     * @return the status
     */
    public static native int RFID_Athenticate(int readerHandle, String tagID, int tagIDLength,
            AUTHENTICATE_PARAMS params, ACCESS_FILTER accessFilter, ANTENNA_INFO antennaInfo, TAG_DATA tagData,
            Object reserved1, Object reserved2, boolean utcTime);
    /**
     * Sends the Gen2v2 untraceable command: hides parts of the tag's memory and reduces its range (a
     * <a href="#access">tag access</a> operation).
     *
     * @param readerHandle the reader handle
     * @param tagID the tag's ID as hexadecimal text
     * @param tagIDLength the ID's length in bytes
     * @param params what to hide, the operating range and the access password; must not be null, nor its
     *        enum fields
     * @param accessFilter the tags the operation applies to; may be null
     * @param antennaInfo the antennas to use, at most 8; may be null
     * @param tagData receives the tag on status 0; may be null
     * @param reserved1 never read; pass null
     * @param reserved2 never read; pass null
     * @param utcTime true for the seen times in {@link SEEN_TIME#utcTime}, false in {@link SEEN_TIME#upTime}
     * @return the status
     */
    public static native int RFID_Untraceable(int readerHandle, String tagID, int tagIDLength,
            UNTRACEABLE_PARAMS params, ACCESS_FILTER accessFilter, ANTENNA_INFO antennaInfo, TAG_DATA tagData,
            Object reserved1, Object reserved2, boolean utcTime);
    /**
     * Gen2v2 read buffer. <b>Do not call:</b> this method reads {@code wordPtr}, {@code bitCount} and
     * {@code accessPassword} through a null reference whatever {@code params} is, which the JVM does not
     * survive (see <a href="#misuse">misuse</a>). The arguments are those of {@link #RFID_Athenticate
     * RFID_Athenticate}.
     *
     * @param readerHandle the reader handle
     * @param tagID the tag's ID as hexadecimal text
     * @param tagIDLength the ID's length in bytes
     * @param params word pointer, bit count and access password
     * @param accessFilter the tags the operation applies to; may be null
     * @param antennaInfo the antennas to use, at most 8; may be null
     * @param tagData receives the tag and the buffer on status 0; may be null
     * @param reserved1 never read; pass null
     * @param reserved2 never read; pass null
     * @param utcTime true for the seen times in {@link SEEN_TIME#utcTime}, false in {@link SEEN_TIME#upTime}
     * @return the status
     */
    public static native int RFID_ReadBuffer(int readerHandle, String tagID, int tagIDLength,
            READ_BUFFER_PARAMS params, ACCESS_FILTER accessFilter, ANTENNA_INFO antennaInfo, TAG_DATA tagData,
            Object reserved1, Object reserved2, boolean utcTime);
    /**
     * Sends the Gen2v2 crypto command: key, challenge and the parameters of a cryptographic suite (a
     * <a href="#access">tag access</a> operation). {@link CRYPTO_PARAMS#IChallenge} must hold three
     * elements.
     *
     * @param readerHandle the reader handle
     * @param tagID the tag's ID as hexadecimal text
     * @param tagIDLength the ID's length in bytes
     * @param params key ID, challenge, profile, offset, block count, protection mode and access password; may
     *        be null
     * @param accessFilter the tags the operation applies to; may be null
     * @param antennaInfo the antennas to use, at most 8; may be null
     * @param tagData receives the tag and the reply on status 0; may be null
     * @param reserved1 never read; pass null
     * @param reserved2 never read; pass null
     * @param utcTime true for the seen times in {@link SEEN_TIME#utcTime}, false in {@link SEEN_TIME#upTime}
     * @return the status
     */
    public static native int RFID_Crypto(int readerHandle, String tagID, int tagIDLength, CRYPTO_PARAMS params,
            ACCESS_FILTER accessFilter, ANTENNA_INFO antennaInfo, TAG_DATA tagData, Object reserved1,
            Object reserved2, boolean utcTime);

    // Access sequences.
    /**
     * Starts a new, empty <a href="#sequence">access sequence</a> on a reader.
     *
     * @param readerHandle the reader handle
     * @return the status
     */
    public static native int RFID_InitializeAccessSequence(int readerHandle);
    /**
     * Appends an operation to the access sequence. The parameters are read from the field of
     * {@code operation} that matches {@code opCode} (see {@link ACCESS_OPERATION}), with the same rules as the
     * single operation; codes without a parameter field (the Gen2v2 ones among them) are added without
     * parameters.
     *
     * @param readerHandle the reader handle
     * @param operation the operation; may be null (the reader API decides)
     * @param operationIndex one-element array; element 0 receives the operation's index on status 0
     * @return the status
     */
    public static native int RFID_AddOperationToAccessSequence(int readerHandle, ACCESS_OPERATION operation,
            int[] operationIndex);
    /**
     * Removes an operation from the access sequence.
     *
     * @param readerHandle the reader handle
     * @param operationIndex the index that {@link #RFID_AddOperationToAccessSequence
     *        RFID_AddOperationToAccessSequence} returned
     * @return the status
     */
    public static native int RFID_DeleteOperationFromAccessSequence(int readerHandle, int operationIndex);
    /**
     * Runs the access sequence: the reader applies its operations to every tag it singulates until the stop
     * trigger or {@link #RFID_StopAccessSequence RFID_StopAccessSequence}. The results arrive as tags, with the
     * data read and the operation's code and status in each {@link TAG_DATA}; fetch them with {@link
     * #rfid_GetReadTags rfid_GetReadTags}.
     *
     * @param readerHandle the reader handle
     * @param accessFilter the tags the sequence applies to; may be null
     * @param antennaInfo the antennas to use, at most 8; may be null
     * @param triggerInfo start and stop triggers; may be null
     * @return the status
     */
    public static native int RFID_PerformAccessSequence(int readerHandle, ACCESS_FILTER accessFilter,
            ANTENNA_INFO antennaInfo, TRIGGER_INFO triggerInfo);
    /**
     * Stops a running access sequence.
     *
     * @param readerHandle the reader handle
     * @return the status
     */
    public static native int RFID_StopAccessSequence(int readerHandle);
    /**
     * Reads the two result counts of the last access sequence run, in the order the reader gives them.
     *
     * @param readerHandle the reader handle
     * @param firstCount one-element array; element 0 receives the first count on status 0
     * @param secondCount one-element array; element 0 receives the second count on status 0
     * @return the status
     */
    public static native int RFID_GetLastAccessResult(int readerHandle, int[] firstCount, int[] secondCount);
    /**
     * Discards the access sequence.
     *
     * @param readerHandle the reader handle
     * @return the status
     */
    public static native int RFID_DeinitializeAccessSequence(int readerHandle);

    // Reader capabilities.
    /**
     * Reads what the reader can do: identity and versions, antenna and port counts, the tables of receive
     * sensitivities, transmit power levels, RF modes, frequencies and duty cycles that the configuration
     * indices refer to, and the feature flags. On status 0 everything is written; every table goes into the
     * arrays that {@code readerCaps} already holds, which must be at least as large as the reader's counts
     * (the no-argument constructor provides room for {@link READER_CAPS#DEFAULT_MAX_VALUES} values). The RF
     * mode tables all take the first table's entry count, and every frequency-hop table receives the first
     * table. Whatever the status, the last eight flags ({@code periodicTagReportsSupported} to
     * {@code GPSReportingSupported}) are written; ignore them after a failure.
     *
     * @param readerHandle the reader handle
     * @param readerCaps receives the capabilities; neither it nor any object it holds may be null
     * @return the status
     */
    public static native int RFID_GetReaderCaps(int readerHandle, READER_CAPS readerCaps);

    // Antenna configuration.
    /**
     * Sets an antenna's three power and frequency indices (indices into the tables of
     * {@link #RFID_GetReaderCaps RFID_GetReaderCaps}), sent in the order given.
     *
     * @param readerHandle the reader handle
     * @param antennaID the antenna
     * @param firstIndex the first index
     * @param secondIndex the second index
     * @param thirdIndex the third index
     * @return the status
     */
    public static native int RFID_SetAntennaConfig(int readerHandle, short antennaID, short firstIndex,
            short secondIndex, short thirdIndex);
    /**
     * Reads an antenna's three indices, in the order of {@link #RFID_SetAntennaConfig RFID_SetAntennaConfig}.
     * Element 0 of all three arrays is written <em>whatever the status</em>: ignore the values when it is not 0.
     *
     * @param readerHandle the reader handle
     * @param antennaID the antenna
     * @param firstIndex one-element array; receives the first index
     * @param secondIndex one-element array; receives the second index
     * @param thirdIndex one-element array; receives the third index
     * @return the status
     */
    public static native int RFID_GetAntennaConfig(int readerHandle, short antennaID, short[] firstIndex,
            short[] secondIndex, short[] thirdIndex);
    /**
     * Reads an antenna's RF configuration. On status 0 writes every field of {@code config} and, in
     * {@code config.antennaStopTrigger}, {@code stopTriggerValue} and the ordinal {@code enumstopTriggerType}
     * (the enum field {@code stopTriggerType} is left alone).
     *
     * @param readerHandle the reader handle
     * @param antennaID the antenna
     * @param config receives the configuration; neither it nor its {@code antennaStopTrigger} may be null
     * @return the status
     */
    public static native int RFID_GetAntennaRfConfig(int readerHandle, short antennaID, ANTENNA_RF_CONFIG config);
    /**
     * Sets an antenna's RF configuration: transmit power, receive sensitivity and frequency as indices into
     * the tables of {@link #RFID_GetReaderCaps RFID_GetReaderCaps}, RF mode table index, tari, ports and the
     * antenna stop trigger (whose type is read from the enum field {@code stopTriggerType}). Indices and ports are
     * sent as 16-bit values, {@code rfModeTableIndex} and {@code tari} as 32-bit ones.
     *
     * @param readerHandle the reader handle
     * @param antennaID the antenna
     * @param config the configuration; may be null (the reader API decides), but when given its
     *        {@code antennaStopTrigger} and {@code stopTriggerType} must not be
     * @return the status
     */
    public static native int RFID_SetAntennaRfConfig(int readerHandle, short antennaID, ANTENNA_RF_CONFIG config);
    /**
     * Sets the cable loss of antennas: cable length in feet and loss per 100 feet, per antenna.
     *
     * @param readerHandle the reader handle
     * @param count sent unchanged beside the records; pass {@code compensations.length}
     * @param compensations one record per antenna; neither the array nor an element may be null
     * @return the status
     */
    public static native int RFID_SetCableLossCompensation(int readerHandle, short count,
            CABLE_LOSS_COMPENSATION[] compensations);
    /**
     * Reads the cable loss of the antenna named by {@code compensation.antennaID}; on status 0 writes
     * {@code cableLengthInFt} and {@code cableLossPer100Ft}.
     *
     * @param readerHandle the reader handle
     * @param compensation names the antenna and receives its values; must not be null
     * @return the status
     */
    public static native int RFID_GetCableLossCompensation(int readerHandle, CABLE_LOSS_COMPENSATION compensation);
    /**
     * Reads the physical properties of an antenna port: a flag and a value, both as the reader defines them.
     *
     * @param readerHandle the reader handle
     * @param antennaID the antenna
     * @param flag one-element array; element 0 receives the flag on status 0
     * @param value one-element array; element 0 receives the value on status 0
     * @return the status
     */
    public static native int RFID_GetPhysicalAntennaProperties(int readerHandle, short antennaID,
            boolean[] flag, int[] value);
    /**
     * Sets the reader-wide antenna mode.
     *
     * @param readerHandle the reader handle
     * @param antennaMode the mode; must not be null
     * @return the status
     */
    public static native int RFID_SetAntennaMode(int readerHandle, ANTENNA_MODE antennaMode);
    /**
     * Reads the reader-wide antenna mode.
     *
     * @param readerHandle the reader handle
     * @param antennaMode one-element array; element 0 receives the mode's ordinal on status 0
     * @return the status
     */
    public static native int RFID_GetAntennaMode(int readerHandle, int[] antennaMode);
    /**
     * Reads whether a read point (antenna) is enabled.
     *
     * @param readerHandle the reader handle
     * @param antennaID the antenna
     * @param enabled one-element array; element 0 receives the state on status 0
     * @return the status
     */
    public static native int RFID_GetReadPointStatus(int readerHandle, short antennaID, boolean[] enabled);
    /**
     * Enables or disables a read point (antenna).
     *
     * @param readerHandle the reader handle
     * @param antennaID the antenna
     * @param enable true to enable
     * @return the status
     */
    public static native int RFID_EnableReadPoint(int readerHandle, short antennaID, boolean enable);

    // Radio settings. The three power-negotiation methods are exported by the
    // library only under C++ symbol names, so the VM does not bind them by name.
    /**
     * Sets an antenna's RF mode: two 32-bit values, sent in the order given.
     *
     * @param readerHandle the reader handle
     * @param antennaID the antenna
     * @param firstValue the first value
     * @param secondValue the second value
     * @return the status
     */
    public static native int RFID_SetRFMode(int readerHandle, short antennaID, int firstValue, int secondValue);
    /**
     * Reads an antenna's RF mode, in the order of {@link #RFID_SetRFMode RFID_SetRFMode}.
     *
     * @param readerHandle the reader handle
     * @param antennaID the antenna
     * @param firstValue one-element array; element 0 receives the first value on status 0
     * @param secondValue one-element array; element 0 receives the second value on status 0
     * @return the status
     */
    public static native int RFID_GetRFMode(int readerHandle, short antennaID, int[] firstValue, int[] secondValue);
    /**
     * Sets the radio's duty cycle.
     *
     * @param readerHandle the reader handle
     * @param dutyCycleIndex index into {@link READER_CAPS#dutyCycleTable}
     * @return the status
     */
    public static native int RFID_SetDutyCycle(int readerHandle, short dutyCycleIndex);
    /**
     * Reads the radio's duty cycle.
     *
     * @param readerHandle the reader handle
     * @param dutyCycleIndex one-element array; element 0 receives the index on status 0
     * @return the status
     */
    public static native int RFID_GetDutyCycle(int readerHandle, short[] dutyCycleIndex);
    /**
     * Switches the radio on or off.
     *
     * @param readerHandle the reader handle
     * @param radioOn true for on
     * @return the status
     */
    public static native int RFID_SetRadioPowerState(int readerHandle, boolean radioOn);
    /**
     * Reads whether the radio is on.
     *
     * @param readerHandle the reader handle
     * @param radioOn one-element array; element 0 receives the state on status 0
     * @return the status
     */
    public static native int RFID_GetRadioPowerState(int readerHandle, boolean[] radioOn);
    /**
     * Sets the time after which an idle radio is switched off.
     *
     * @param readerHandle the reader handle
     * @param idleTimeoutMilliseconds the idle time, in milliseconds
     * @return the status
     */
    public static native int RFID_TurnOffRadioWhenIdle(int readerHandle, int idleTimeoutMilliseconds);
    /**
     * Reads the idle time-out of {@link #RFID_TurnOffRadioWhenIdle RFID_TurnOffRadioWhenIdle}. Element 0 is set to
     * 0 before the call, so a failed call leaves 0 there.
     *
     * @param readerHandle the reader handle
     * @param idleTimeoutMilliseconds one-element array; element 0 receives the time-out in milliseconds
     * @return the status
     */
    public static native int RFID_GetRadioIdleTimeout(int readerHandle, int[] idleTimeoutMilliseconds);
    /**
     * Reads the power negotiation status into {@code enumMode}. <b>Not callable:</b> the library exports this
     * method only under its C++ symbol name, so the call throws {@link UnsatisfiedLinkError}.
     *
     * @param readerHandle the reader handle
     * @param status receives the status on status 0
     * @return the status
     */
    public static native int RFID_GetPowerNegotiationStatus(int readerHandle, POWER_NEGOTIATION_STATUS status);
    /**
     * Switches power negotiation on or off, from {@code state.status}. <b>Not callable:</b> the call throws
     * {@link UnsatisfiedLinkError}, as for {@link #RFID_GetPowerNegotiationStatus RFID_GetPowerNegotiationStatus}.
     *
     * @param readerHandle the reader handle
     * @param state the state to set
     * @return the status
     */
    public static native int RFID_SetPowerNegotiationState(int readerHandle, POWER_NEGOTIATION_STATE state);
    /**
     * Reads whether power negotiation is on, into {@code state.powernegstate}. <b>Not callable:</b> the call
     * throws {@link UnsatisfiedLinkError}, as for {@link #RFID_GetPowerNegotiationStatus
     * RFID_GetPowerNegotiationStatus}.
     *
     * @param readerHandle the reader handle
     * @param state receives the state on status 0
     * @return the status
     */
    public static native int RFID_GetPowerNegotiationState(int readerHandle, POWER_NEGOTIATION_STATE state);
    /**
     * Reads the USB operation mode; on status 0 writes {@code allowLLRPConnectionOverride} and the ordinal
     * {@code enumMode} (the enum field {@code mode} is left alone).
     *
     * @param readerHandle the reader handle
     * @param settings receives the settings; must not be null
     * @return the status
     */
    public static native int RFID_GetUSBOperationMode(int readerHandle, USB_OPERATION_MODE_SETTINGS settings);
    /**
     * Sets the USB operation mode from the enum field {@code mode} and {@code allowLLRPConnectionOverride}.
     *
     * @param readerHandle the reader handle
     * @param settings the settings; neither it nor its {@code mode} may be null
     * @return the status
     */
    public static native int RFID_SetUSBOperationMode(int readerHandle, USB_OPERATION_MODE_SETTINGS settings);

    // GPIO and user LED.
    /**
     * Enables or disables a general-purpose input port.
     *
     * @param readerHandle the reader handle
     * @param port the port number
     * @param enable true to enable
     * @return the status
     */
    public static native int RFID_EnableGPIPort(int readerHandle, int port, boolean enable);
    /**
     * Reads a general-purpose input: its state and a value as the reader defines it.
     *
     * @param readerHandle the reader handle
     * @param port the port number
     * @param state one-element array; element 0 receives the state on status 0
     * @param value one-element array; element 0 receives the value on status 0
     * @return the status
     */
    public static native int RFID_GetGPIState(int readerHandle, int port, boolean[] state, int[] value);
    /**
     * Sets a general-purpose output.
     *
     * @param readerHandle the reader handle
     * @param port the port number
     * @param state true for high
     * @return the status
     */
    public static native int RFID_SetGPOState(int readerHandle, int port, boolean state);
    /**
     * Reads a general-purpose output.
     *
     * @param readerHandle the reader handle
     * @param port the port number
     * @param state one-element array; element 0 receives the state on status 0
     * @return the status
     */
    public static native int RFID_GetGPOState(int readerHandle, int port, boolean[] state);
    /**
     * Sets the GPI debounce time: an int and a record of four 32-bit values, both sent as given. The array
     * is not written back.
     *
     * @param readerHandle the reader handle
     * @param value sent unchanged beside the record
     * @param debounceRecord the four values of the record; must hold at least 4 elements
     * @return the status
     */
    public static native int RFID_SetGPIDebounceTime(int readerHandle, int value, int[] debounceRecord);
    /**
     * Reads the GPI debounce time. The record is sent but not written back.
     *
     * @param readerHandle the reader handle
     * @param value one-element array; element 0 receives the debounce value on status 0
     * @param debounceRecord the four values of the record sent; must hold at least 4 elements
     * @return the status
     */
    public static native int RFID_GetGPIDebounceTime(int readerHandle, int[] value, int[] debounceRecord);
    /**
     * Lights the user LED in a colour for {@code ledInfo.duration}, steady or blinking.
     *
     * @param readerHandle the reader handle
     * @param ledInfo colour, duration and blink; neither it nor its {@code ledColor} may be null
     * @return the status
     */
    public static native int RFID_SetUserLED(int readerHandle, LED_INFO ledInfo);

    // Reader information, clock, statistics and health.
    /**
     * Reads the reader's system information (versions, up-time, memory, processor load, power source); on
     * status 0 writes every field.
     *
     * @param readerHandle the reader handle
     * @param systemInfo receives the information; neither it nor its {@code structInfo} may be null
     * @return the status
     */
    public static native int RFID_GetSystemInfo(int readerHandle, SYSTEM_INFO systemInfo);
    /**
     * Reads the reader's name, description, location and contact; on status 0 writes the four fields.
     *
     * @param readerHandle the reader handle
     * @param readerInfo receives the information; must not be null
     * @return the status
     */
    public static native int RFID_GetReaderInfo(int readerHandle, READER_INFO readerInfo);
    /**
     * Sets the reader's name, description, location and contact; a null field is sent empty.
     *
     * @param readerHandle the reader handle
     * @param readerInfo the information; must not be null
     * @return the status
     */
    public static native int RFID_SetReaderInfo(int readerHandle, READER_INFO readerInfo);
    /**
     * Reads the reader's clock; on status 0 writes the eight fields of {@code localTime}.
     *
     * @param readerHandle the reader handle
     * @param localTime receives the time; must not be null
     * @return the status
     */
    public static native int RFID_GetLocalTime(int readerHandle, SYSTEMTIME localTime);
    /**
     * Sets the reader's clock.
     *
     * @param readerHandle the reader handle
     * @param localTime the time; must not be null
     * @return the status
     */
    public static native int RFID_SetLocalTime(int readerHandle, SYSTEMTIME localTime);
    /**
     * Reads the reader's time zones; on status 0 writes their number, the active index and all names.
     *
     * @param readerHandle the reader handle
     * @param timeZoneList receives the list; must not be null
     * @return the status
     */
    public static native int RFID_GetTimeZoneList(int readerHandle, TIME_ZONE_LIST timeZoneList);
    /**
     * Sets the reader's time zone.
     *
     * @param readerHandle the reader handle
     * @param timeZoneIndex index into the names of {@link #RFID_GetTimeZoneList RFID_GetTimeZoneList}
     * @return the status
     */
    public static native int RFID_SetTimeZone(int readerHandle, short timeZoneIndex);
    /**
     * Reads the success and failure counters of tag operations on one antenna; on status 0 writes every
     * counter.
     *
     * @param readerHandle the reader handle
     * @param antennaID the antenna
     * @param readerStats receives the counters; must not be null
     * @return the status
     */
    public static native int RFID_GetReaderStats(int readerHandle, short antennaID, READER_STATS readerStats);
    /**
     * Resets the counters of {@link #RFID_GetReaderStats RFID_GetReaderStats}.
     *
     * @param readerHandle the reader handle
     * @return the status
     */
    public static native int RFID_ClearReaderStats(int readerHandle);
    /**
     * Reads the health of one part of the reader.
     *
     * @param readerHandle the reader handle
     * @param healthParam what to query; must not be null
     * @param healthStatus one-element array; element 0 receives the health status on status 0
     * @param extra may be null; when given, its storage is passed to the reader but nothing the reader puts
     *        there reaches the array
     * @return the status
     */
    public static native int RFID_GetHealthStatus(int readerHandle, HEALTH_PARAM healthParam, short[] healthStatus,
            int[] extra);

    // Profiles, updates, user applications and LLRP configuration persistence.
    /**
     * Reads the configuration profiles stored on the reader; on status 0 writes their number, the active
     * index and all names.
     *
     * @param readerHandle the reader handle
     * @param profileList receives the list; must not be null
     * @return the status
     */
    public static native int RFID_GetProfileList(int readerHandle, PROFILE_LIST profileList);
    /**
     * Copies a profile from the reader; the two names are sent in the order given.
     *
     * @param readerHandle the reader handle
     * @param firstName the first name
     * @param secondName the second name
     * @return the status
     */
    public static native int RFID_ImportProfileFromReader(int readerHandle, String firstName, String secondName);
    /**
     * Copies a profile to the reader; the two names are sent in the order given.
     *
     * @param readerHandle the reader handle
     * @param firstName the first name
     * @param secondName the second name
     * @param flag sent as 0 or 1
     * @return the status
     */
    public static native int RFID_ExportProfileToReader(int readerHandle, String firstName, String secondName,
            boolean flag);
    /**
     * Deletes a profile stored on the reader.
     *
     * @param readerHandle the reader handle
     * @param profileName the profile
     * @return the status
     */
    public static native int RFID_DeleteProfile(int readerHandle, String profileName);
    /**
     * Makes a stored profile the active one.
     *
     * @param readerHandle the reader handle
     * @param profileName the profile
     * @return the status
     */
    public static native int RFID_SetActiveProfile(int readerHandle, String profileName);
    /**
     * Starts a software update from a host; follow it with {@link #RFID_GetUpdateStatus RFID_GetUpdateStatus}.
     *
     * @param readerHandle the reader handle
     * @param updateInfo host, user name and password (a null field is sent empty); must not be null
     * @return the status
     */
    public static native int RFID_UpdateSoftware(int readerHandle, UPDATE_INFO updateInfo);
    /**
     * Reads the progress of an update; on status 0 writes {@code percentage} and {@code updateInfo}.
     *
     * @param readerHandle the reader handle
     * @param updateStatus receives the progress; must not be null
     * @return the status
     */
    public static native int RFID_GetUpdateStatus(int readerHandle, UPDATE_STATUS updateStatus);
    /**
     * Updates the radio configuration from a file.
     *
     * @param readerHandle the reader handle
     * @param fileName the file
     * @return the status
     */
    public static native int RFID_UpdateRadioConfig(int readerHandle, String fileName);
    /**
     * Updates the radio firmware from a file.
     *
     * @param readerHandle the reader handle
     * @param fileName the file
     * @return the status
     */
    public static native int RFID_UpdateRadioFirmware(int readerHandle, String fileName);
    /**
     * Installs a user application on the reader.
     *
     * @param readerHandle the reader handle
     * @param packageName the application package
     * @return the status
     */
    public static native int RFID_InstallUserApp(int readerHandle, String packageName);
    /**
     * Uninstalls a user application.
     *
     * @param readerHandle the reader handle
     * @param appName the application
     * @return the status
     */
    public static native int RFID_UninstallUserApp(int readerHandle, String appName);
    /**
     * Starts a user application.
     *
     * @param readerHandle the reader handle
     * @param appName the application
     * @return the status
     */
    public static native int RFID_StartUserApp(int readerHandle, String appName);
    /**
     * Stops a user application.
     *
     * @param readerHandle the reader handle
     * @param appName the application
     * @return the status
     */
    public static native int RFID_StopUserApp(int readerHandle, String appName);
    /**
     * Sets whether a user application starts with the reader.
     *
     * @param readerHandle the reader handle
     * @param appName the application
     * @param autoStart true to start it with the reader
     * @return the status
     */
    public static native int RFID_SetAutoStartUserApp(int readerHandle, String appName, boolean autoStart);
    /**
     * Lists the installed user applications: on status 0 fills one element of {@code userApps} per element,
     * whatever the number installed, so size the array with {@link #RFID_NumInstalledApps RFID_NumInstalledApps};
     * a longer array reads past the reader's list.
     *
     * @param readerHandle the reader handle
     * @param userApps constructed objects, no more than the applications installed; no element may be null
     * @return the status
     */
    public static native int RFID_ListUserApps(int readerHandle, USER_APP_INFO[] userApps);
    /**
     * Reads whether a user application runs; on status 0 writes {@code runStatus}.
     *
     * @param readerHandle the reader handle
     * @param appName the application
     * @param runStatus receives the state; must not be null
     * @return the status
     */
    public static native int RFID_GetCurrentUserAppRunStatus(int readerHandle, String appName,
            USER_APP_RUN_STATUS runStatus);
    /**
     * Counts the installed user applications.
     *
     * @param readerHandle the reader handle
     * @return the number of applications, not a status (0 when the query fails)
     */
    public static native int RFID_NumInstalledApps(int readerHandle);
    /**
     * Saves the reader's LLRP configuration.
     *
     * @param readerHandle the reader handle
     * @param saveArgument forwarded unchanged as the reader API's pointer-sized argument
     * @return the status
     */
    public static native int RFID_SaveLlrpConfig(int readerHandle, long saveArgument);
    /**
     * Reads whether the LLRP configuration has been saved.
     *
     * @param readerHandle the reader handle
     * @param saved one-element array; element 0 receives the state on status 0
     * @return the status
     */
    public static native int RFID_GetSaveLlrpConfigStatus(int readerHandle, boolean[] saved);
    /**
     * Resets the reader's configuration to the factory defaults.
     *
     * @param readerHandle the reader handle
     * @return the status
     */
    public static native int RFID_ResetConfigToFactoryDefaults(int readerHandle);
}
