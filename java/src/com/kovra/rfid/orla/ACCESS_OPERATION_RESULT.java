package com.kovra.rfid.orla;

/** Holder of the access operation result of a tag. */
public class ACCESS_OPERATION_RESULT {
    public ACCESS_OPERATION_RESULT_VALUE value = new ACCESS_OPERATION_RESULT_VALUE();
}
