package upsizer.mdbgen;

import java.nio.charset.StandardCharsets;

/**
 * SplitMix64: a tiny generator whose every output is fixed by this code alone, so a description
 * yields the same rows on any JVM.
 */
final class Rng {
    private long state;

    Rng(long seed) {
        state = seed;
    }

    /** A stream for one column of one table, independent of the other columns. */
    static Rng forColumn(long seed, String table, String column, int stream) {
        long h = 0xcbf29ce484222325L; // FNV-1a over the UTF-8 of "table\0column"
        for (byte b : (table + "\0" + column).getBytes(StandardCharsets.UTF_8)) {
            h = (h ^ (b & 0xFF)) * 0x100000001b3L;
        }
        Rng r = new Rng(seed ^ h ^ (0x9E3779B97F4A7C15L * (stream + 1)));
        r.next();
        return r;
    }

    long next() {
        long z = (state += 0x9E3779B97F4A7C15L);
        z = (z ^ (z >>> 30)) * 0xBF58476D1CE4E5B9L;
        z = (z ^ (z >>> 27)) * 0x94D049BB133111EBL;
        return z ^ (z >>> 31);
    }

    /** Uniform in [0, 1). */
    double nextDouble() {
        return (next() >>> 11) * 0x1.0p-53;
    }

    /** Uniform in [lo, hi]; hi - lo must be below 2^62. */
    long between(long lo, long hi) {
        long span = hi - lo + 1;
        return lo + Long.remainderUnsigned(next(), span);
    }
}
