package com.kovra.rfid.orla;

/** Memory bookkeeping header carried by several reader records. */
public class STRUCT_INFO {
    public int memoryAllocated;
    public int memoryUsed;
}
