package com.kovra.rfid.orla.sim;

import java.util.Arrays;

/** Little-endian fields of C records, read from and composed into byte arrays. */
public final class Bytes {
  private Bytes() {}

  public static int u8(byte[] b, int off) {
    return b[off] & 0xFF;
  }

  public static int s8(byte[] b, int off) {
    return b[off];
  }

  public static int u16(byte[] b, int off) {
    return u8(b, off) | u8(b, off + 1) << 8;
  }

  public static short s16(byte[] b, int off) {
    return (short) u16(b, off);
  }

  public static long u32(byte[] b, int off) {
    return s32(b, off) & 0xFFFFFFFFL;
  }

  public static int s32(byte[] b, int off) {
    return u16(b, off) | u16(b, off + 2) << 16;
  }

  public static long s64(byte[] b, int off) {
    return u32(b, off) | (long) s32(b, off + 4) << 32;
  }

  public static long ptr(byte[] b, int off) {
    return s64(b, off);
  }

  public static float f32(byte[] b, int off) {
    return Float.intBitsToFloat(s32(b, off));
  }

  /** The wide string at off: up to its NUL or maxChars characters (4 bytes each). */
  public static String wide(byte[] b, int off, int maxChars) {
    StringBuilder text = new StringBuilder();
    for (int i = 0; i < maxChars && off + 4 * i + 4 <= b.length; i++) {
      int c = s32(b, off + 4 * i);
      if (c == 0) {
        break;
      }
      text.appendCodePoint(c);
    }
    return text.toString();
  }

  /** s as a NUL-terminated wide string: 4 bytes a character, terminator included. */
  public static byte[] wide(String s) {
    int[] chars = s.codePoints().toArray();
    Builder b = new Builder(4 * chars.length + 4);
    for (int i = 0; i < chars.length; i++) {
      b.s32(4 * i, chars[i]);
    }
    return b.build();
  }

  public static byte[] slice(byte[] b, int off, int n) {
    return Arrays.copyOfRange(b, off, off + n);
  }

  /** Upper-case hexadecimal, two digits a byte, for messages. */
  public static String hex(byte[] b) {
    StringBuilder text = new StringBuilder();
    for (byte x : b) {
      text.append(String.format("%02X", x & 0xFF));
    }
    return text.toString();
  }

  /** Composes a zeroed record of a fixed size field by field. */
  public static final class Builder {
    private final byte[] b;

    public Builder(int size) {
      b = new byte[size];
    }

    public Builder u8(int off, int v) {
      b[off] = (byte) v;
      return this;
    }

    public Builder u16(int off, int v) {
      return u8(off, v).u8(off + 1, v >>> 8);
    }

    public Builder s32(int off, int v) {
      return u16(off, v).u16(off + 2, v >>> 16);
    }

    public Builder u32(int off, long v) {
      return s32(off, (int) v);
    }

    public Builder s64(int off, long v) {
      return s32(off, (int) v).s32(off + 4, (int) (v >>> 32));
    }

    public Builder ptr(int off, long address) {
      return s64(off, address);
    }

    public Builder f32(int off, float v) {
      return s32(off, Float.floatToRawIntBits(v));
    }

    /** A wide string of at most maxChars characters, NUL-terminated when it is shorter. */
    public Builder wide(int off, String s, int maxChars) {
      int[] chars = s.codePoints().limit(maxChars).toArray();
      for (int i = 0; i < chars.length; i++) {
        s32(off + 4 * i, chars[i]);
      }
      if (chars.length < maxChars) {
        s32(off + 4 * chars.length, 0);
      }
      return this;
    }

    public Builder bytes(int off, byte[] v) {
      System.arraycopy(v, 0, b, off, v.length);
      return this;
    }

    public byte[] build() {
      return b.clone();
    }
  }
}
