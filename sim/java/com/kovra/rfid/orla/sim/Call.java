package com.kovra.rfid.orla.sim;

/** One recorded call of the simulated reader library, for short assertions. */
public final class Call {
  public final String fn;
  /** Position among the calls of fn, counted from 0 (never negative). */
  public final int index;
  private final long[] args;

  private Call(String fn, int index) {
    this.fn = fn;
    this.index = index;
    this.args = SimControl.args(fn, index);
  }

  /** The call of fn at index; a negative index counts back from the last call. */
  public static Call of(String fn, int index) {
    int resolved = index < 0 ? SimControl.count(fn) + index : index;
    return new Call(fn, resolved);
  }

  /** The last call of fn. */
  public static Call last(String fn) {
    return of(fn, -1);
  }

  public long arg(int i) {
    return args[i];
  }

  public long[] args() {
    return args.clone();
  }

  /** The blob's bytes, or null when its pointer was NULL (see {@link SimControl#blob}). */
  public byte[] blob(String name) {
    return SimControl.blob(fn, index, name);
  }

  public String[] blobNames() {
    return SimControl.blobNames(fn, index);
  }

  @Override
  public String toString() {
    return fn + "#" + index;
  }
}
