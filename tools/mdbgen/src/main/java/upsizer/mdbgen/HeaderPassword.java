package upsizer.mdbgen;

import java.io.IOException;
import java.nio.ByteBuffer;
import java.nio.ByteOrder;
import java.nio.channels.FileChannel;
import java.nio.charset.StandardCharsets;
import java.nio.file.Path;
import java.nio.file.StandardOpenOption;

/**
 * The database password of a Jet 4 file, which lives on page 0 (the database definition page).
 *
 * Layout, all little-endian:
 * - bytes 0x18..0x97 (128 bytes) are XOR-masked with an RC4 key stream; the RC4 key is the four
 *   bytes C7 DA 39 6B. The fields below are inside that area and are read after unmasking.
 * - 0x42..0x69 (40 bytes): the password, up to 20 UCS-2 characters, zero-padded.
 * - 0x72..0x79: the creation date, a Jet date double. Jet 4 masks the password a second time
 *   with the four little-endian bytes of (int) creationDate, repeated over the 40 bytes.
 *
 * A file without a password therefore has 40 bytes that unmask to zero.
 */
final class HeaderPassword {
    static final int PAGE_SIZE = 4096;
    static final int MASKED_OFFSET = 0x18;
    static final int MASKED_LENGTH = 128;
    static final int PASSWORD_OFFSET = 0x42;
    static final int PASSWORD_BYTES = 40;
    static final int MAX_CHARS = PASSWORD_BYTES / 2;
    static final int CREATION_DATE_OFFSET = 0x72;
    static final int VERSION_OFFSET = 0x14;
    private static final byte[] RC4_KEY = {(byte) 0xC7, (byte) 0xDA, 0x39, 0x6B};

    private HeaderPassword() {}

    /** The 128-byte key stream that masks the header. */
    static byte[] headerMask() {
        return rc4(RC4_KEY, MASKED_LENGTH);
    }

    static byte[] rc4(byte[] key, int length) {
        int[] s = new int[256];
        for (int i = 0; i < 256; i++) {
            s[i] = i;
        }
        for (int i = 0, j = 0; i < 256; i++) {
            j = (j + s[i] + (key[i % key.length] & 0xFF)) & 0xFF;
            int t = s[i];
            s[i] = s[j];
            s[j] = t;
        }
        byte[] out = new byte[length];
        for (int n = 0, i = 0, j = 0; n < length; n++) {
            i = (i + 1) & 0xFF;
            j = (j + s[i]) & 0xFF;
            int t = s[i];
            s[i] = s[j];
            s[j] = t;
            out[n] = (byte) s[(s[i] + s[j]) & 0xFF];
        }
        return out;
    }

    /** Page 0 with the RC4 mask removed (the mask is its own inverse). */
    static byte[] unmaskedHeader(byte[] page0) {
        byte[] page = page0.clone();
        byte[] mask = headerMask();
        for (int i = 0; i < MASKED_LENGTH; i++) {
            page[MASKED_OFFSET + i] ^= mask[i];
        }
        return page;
    }

    static byte[] creationDateMask(byte[] unmaskedPage) {
        double date = ByteBuffer.wrap(unmaskedPage).order(ByteOrder.LITTLE_ENDIAN).getDouble(CREATION_DATE_OFFSET);
        return ByteBuffer.allocate(4).order(ByteOrder.LITTLE_ENDIAN).putInt((int) date).array();
    }

    /** The password read from page 0 by our own unmasking; "" when the file has none. */
    static String read(byte[] page0) throws IOException {
        requireJet4(page0);
        byte[] page = unmaskedHeader(page0);
        byte[] dateMask = creationDateMask(page);
        byte[] raw = new byte[PASSWORD_BYTES];
        for (int i = 0; i < PASSWORD_BYTES; i++) {
            raw[i] = (byte) (page[PASSWORD_OFFSET + i] ^ dateMask[i % 4]);
        }
        String text = new String(raw, StandardCharsets.UTF_16LE);
        int end = text.indexOf('\0');
        return end < 0 ? text : text.substring(0, end);
    }

    static String read(Path file) throws IOException {
        return read(readPage0(file));
    }

    /**
     * Writes a password (and, if given, a new creation date first, since the mask depends on it)
     * into page 0 of a closed Jet 4 file.
     */
    static void write(Path file, String password, Double creationDate) throws IOException {
        if (password.length() > MAX_CHARS) {
            throw new IllegalArgumentException("a Jet 4 password has at most " + MAX_CHARS
                    + " characters, got " + password.length());
        }
        if (password.indexOf('\0') >= 0) {
            throw new IllegalArgumentException("a password cannot contain NUL");
        }
        byte[] page0 = readPage0(file);
        requireJet4(page0);
        byte[] page = unmaskedHeader(page0);
        ByteBuffer view = ByteBuffer.wrap(page).order(ByteOrder.LITTLE_ENDIAN);
        if (creationDate != null) {
            view.putDouble(CREATION_DATE_OFFSET, creationDate);
        }
        byte[] dateMask = creationDateMask(page);
        byte[] plain = new byte[PASSWORD_BYTES];
        byte[] text = password.getBytes(StandardCharsets.UTF_16LE);
        System.arraycopy(text, 0, plain, 0, text.length);
        for (int i = 0; i < PASSWORD_BYTES; i++) {
            page[PASSWORD_OFFSET + i] = (byte) (plain[i] ^ dateMask[i % 4]);
        }
        byte[] masked = unmaskedHeader(page); // masking again restores the on-disk form
        try (FileChannel ch = FileChannel.open(file, StandardOpenOption.WRITE)) {
            ch.write(ByteBuffer.wrap(masked, 0, PAGE_SIZE), 0);
        }
    }

    static final int DATABASE_KEY_OFFSET = 0x3E;

    /**
     * Turns a closed, plain Jet 4 file into an RC4-"encoded" one (Access's "Encrypt Database"):
     * the database key goes into page 0 at 0x3E (inside the masked area), and every page after
     * page 0 is RC4-encrypted on its own, with the four little-endian bytes of
     * (databaseKey XOR pageNumber) as the key. A key of 0 means "not encoded", so it is refused.
     */
    static void encodePages(Path file, int databaseKey) throws IOException {
        if (databaseKey == 0) {
            throw new IllegalArgumentException("a database key of 0 means the file is not encoded");
        }
        byte[] page0 = readPage0(file);
        requireJet4(page0);
        byte[] page = unmaskedHeader(page0);
        if (ByteBuffer.wrap(page).order(ByteOrder.LITTLE_ENDIAN).getInt(DATABASE_KEY_OFFSET) != 0) {
            throw new IOException(file + " is encoded already");
        }
        ByteBuffer.wrap(page).order(ByteOrder.LITTLE_ENDIAN).putInt(DATABASE_KEY_OFFSET, databaseKey);
        try (FileChannel ch = FileChannel.open(file, StandardOpenOption.READ, StandardOpenOption.WRITE)) {
            ch.write(ByteBuffer.wrap(unmaskedHeader(page)), 0);
            long pages = ch.size() / PAGE_SIZE;
            ByteBuffer buf = ByteBuffer.allocate(PAGE_SIZE);
            for (int p = 1; p < pages; p++) {
                buf.clear();
                while (buf.hasRemaining()) {
                    if (ch.read(buf, (long) p * PAGE_SIZE + buf.position()) < 0) {
                        throw new IOException(file + ": short page " + p);
                    }
                }
                byte[] key = ByteBuffer.allocate(4).order(ByteOrder.LITTLE_ENDIAN).putInt(databaseKey ^ p).array();
                byte[] stream = rc4(key, PAGE_SIZE);
                byte[] data = buf.array();
                for (int i = 0; i < PAGE_SIZE; i++) {
                    data[i] ^= stream[i];
                }
                ch.write(ByteBuffer.wrap(data), (long) p * PAGE_SIZE);
            }
        }
    }

    static byte[] readPage0(Path file) throws IOException {
        try (FileChannel ch = FileChannel.open(file, StandardOpenOption.READ)) {
            ByteBuffer buf = ByteBuffer.allocate(PAGE_SIZE);
            while (buf.hasRemaining()) {
                if (ch.read(buf, buf.position()) < 0) {
                    throw new IOException(file + ": shorter than one 4096-byte page");
                }
            }
            return buf.array();
        }
    }

    private static void requireJet4(byte[] page0) throws IOException {
        if (page0.length < PAGE_SIZE || page0[0] != 0 || page0[VERSION_OFFSET] != 1) {
            throw new IOException("not a Jet 4 database (page 0, version byte "
                    + (page0.length > VERSION_OFFSET ? page0[VERSION_OFFSET] : -1) + ")");
        }
    }
}
