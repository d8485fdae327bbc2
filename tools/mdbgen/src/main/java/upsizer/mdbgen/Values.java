package upsizer.mdbgen;

import com.healthmarketscience.jackcess.DataType;
import com.healthmarketscience.jackcess.impl.ColumnImpl;
import java.math.BigDecimal;
import java.math.BigInteger;
import java.nio.ByteBuffer;
import java.nio.ByteOrder;
import java.time.LocalDate;
import java.time.LocalDateTime;
import java.time.format.DateTimeParseException;
import java.util.HexFormat;
import java.util.Locale;
import java.util.regex.Pattern;

/** Turns the literal values of a description into what Jackcess writes for a column type. */
final class Values {
    static final BigDecimal MONEY_MIN = new BigDecimal("-922337203685477.5808");
    static final BigDecimal MONEY_MAX = new BigDecimal("922337203685477.5807");
    private static final Pattern GUID = Pattern.compile(
            "\\{?[0-9A-Fa-f]{8}-[0-9A-Fa-f]{4}-[0-9A-Fa-f]{4}-[0-9A-Fa-f]{4}-[0-9A-Fa-f]{12}}?");

    private Values() {}

    /** The value for one cell; {@code null} stays null (SQL NULL). */
    static Object literal(Desc v, ColumnDef col) {
        if (v.node.isNull()) {
            return null;
        }
        DataType type = col.type();
        int sizeInUnits = col.size();
        switch (type) {
            case BOOLEAN:
                if (!v.node.isBoolean()) {
                    throw v.error("expected true or false for BOOLEAN");
                }
                return v.node.booleanValue();
            case BYTE:
                return (int) range(v, 0, 255, type);
            case INT:
                return (short) range(v, Short.MIN_VALUE, Short.MAX_VALUE, type);
            case LONG:
                return (int) range(v, Integer.MIN_VALUE, Integer.MAX_VALUE, type);
            case MONEY:
                return money(v, v.decimal());
            case FLOAT:
                return floatValue(v);
            case DOUBLE:
                return doubleValue(v);
            case NUMERIC:
                return numeric(v, v.decimal(), col.precision(), col.scale());
            case SHORT_DATE_TIME:
                return date(v);
            case TEXT:
            case MEMO:
                return text(v, type, sizeInUnits);
            case GUID:
                return guid(v);
            case OLE:
            case BINARY:
                return bytes(v, type, sizeInUnits);
            default:
                throw v.error("type " + type + " is not supported");
        }
    }

    static BigDecimal money(Desc v, BigDecimal d) {
        if (d.scale() > 4 && d.stripTrailingZeros().scale() > 4) {
            throw v.error("MONEY keeps 4 decimal places; " + d.toPlainString() + " would be rounded");
        }
        if (d.compareTo(MONEY_MIN) < 0 || d.compareTo(MONEY_MAX) > 0) {
            throw v.error("MONEY out of range: " + d.toPlainString());
        }
        return d.setScale(4);
    }

    static long range(Desc v, long min, long max, DataType type) {
        long n = v.integer();
        if (n < min || n > max) {
            throw v.error(type + " holds " + min + ".." + max + ", got " + n);
        }
        return n;
    }

    /** A JSON number, or "NaN", "Infinity", "-Infinity", "-0", or the bit pattern "0x7fc00000". */
    static Float floatValue(Desc v) {
        if (v.node.isTextual()) {
            String s = v.node.textValue().trim();
            if (s.startsWith("0x")) {
                return Float.intBitsToFloat((int) hexBits(v, s, 8));
            }
            Double special = special(s);
            if (special != null) {
                return special.floatValue();
            }
        }
        BigDecimal d = v.decimal();
        float f = d.floatValue();
        if (Float.isInfinite(f)) {
            throw v.error("FLOAT out of range: " + d);
        }
        return f;
    }

    static Double doubleValue(Desc v) {
        if (v.node.isTextual()) {
            String s = v.node.textValue().trim();
            if (s.startsWith("0x")) {
                return Double.longBitsToDouble(hexBits(v, s, 16));
            }
            Double special = special(s);
            if (special != null) {
                return special;
            }
        }
        BigDecimal d = v.decimal();
        double x = d.doubleValue();
        if (Double.isInfinite(x)) {
            throw v.error("DOUBLE out of range: " + d);
        }
        return x;
    }

    /** "0x" and exactly {@code digits} hex digits. */
    private static long hexBits(Desc v, String s, int digits) {
        String hex = s.substring(2);
        if (hex.length() != digits || !hex.chars().allMatch(c -> Character.digit(c, 16) >= 0)) {
            throw v.error("a bit pattern is 0x and " + digits + " hex digits: " + s);
        }
        return Long.parseUnsignedLong(hex, 16);
    }

    private static Double special(String s) {
        switch (s) {
            case "NaN": return Double.NaN;
            case "Infinity": return Double.POSITIVE_INFINITY;
            case "-Infinity": return Double.NEGATIVE_INFINITY;
            case "-0": return -0.0;
            default: return null;
        }
    }

    /**
     * A date as "yyyy-MM-dd", "yyyy-MM-ddTHH:mm[:ss[.fff]]" (written through Jackcess), or as the
     * stored double itself: {"jet": -1.25} or {"bits": "0xc0f4000000000000"} (written as given).
     */
    static Object date(Desc v) {
        if (v.node.isTextual()) {
            return parseDateTime(v);
        }
        return rawDouble(storedDate(v));
    }

    /** {"jet": -1.25} or {"bits": "0xc0f4000000000000"}: the stored double itself. */
    private static double storedDate(Desc v) {
        if (!v.isObject()) {
            throw v.error("expected an ISO date string or {\"jet\": ...} / {\"bits\": ...}");
        }
        v.object("jet", "bits");
        if (v.has("jet")) {
            return v.get("jet").decimal().doubleValue();
        }
        String s = v.text("bits");
        return Double.longBitsToDouble(hexBits(v.get("bits"), s.startsWith("0x") ? s : "0x" + s, 16));
    }

    /** A date of the description as the Jet double itself (our own conversion for ISO text). */
    static double dateDouble(Desc v) {
        if (v.node.isTextual()) {
            return JetDate.fromLocalDateTime(parseDateTime(v));
        }
        return storedDate(v);
    }

    static LocalDateTime parseDateTime(Desc v) {
        String s = v.text();
        try {
            if (s.length() == 10) {
                return LocalDate.parse(s).atStartOfDay();
            }
            LocalDateTime t = LocalDateTime.parse(s);
            if (t.getNano() % 1_000_000 != 0) {
                throw v.error("dates keep milliseconds at most: " + s);
            }
            return t;
        } catch (DateTimeParseException e) {
            throw v.error("not an ISO date or date-time: " + s);
        }
    }

    static Object rawDouble(double d) {
        byte[] b = ByteBuffer.allocate(8).order(ByteOrder.LITTLE_ENDIAN).putDouble(d).array();
        return ColumnImpl.rawDataWrapper(b);
    }

    /** A string, or {"repeat": "ab", "length": n} for n characters of the repeated pattern. */
    static String text(Desc v, DataType type, int sizeInUnits) {
        String s;
        if (v.isObject()) {
            v.object("repeat", "length");
            String pattern = v.text("repeat");
            long length = v.integer("length");
            if (pattern.isEmpty() || length < 0 || length > 100_000_000L) {
                throw v.error("repeat needs a non-empty pattern and a length of 0..100000000");
            }
            s = repeat(pattern, (int) length);
        } else {
            s = v.text();
        }
        if (type == DataType.TEXT && s.length() > sizeInUnits) {
            throw v.error("text of " + s.length() + " characters does not fit TEXT(" + sizeInUnits + ")");
        }
        return s;
    }

    static String repeat(String pattern, int length) {
        StringBuilder b = new StringBuilder(length);
        while (b.length() < length) {
            b.append(pattern, 0, Math.min(pattern.length(), length - b.length()));
        }
        return b.toString();
    }

    static String guid(Desc v) {
        String s = v.text().trim();
        if (!GUID.matcher(s).matches()) {
            throw v.error("not a GUID: " + s);
        }
        if (!s.startsWith("{")) {
            s = "{" + s + "}";
        }
        return s.toUpperCase(Locale.ROOT);
    }

    /** Hex digits, or {"repeat": "00ff", "length": bytes}. */
    static byte[] bytes(Desc v, DataType type, int sizeInBytes) {
        byte[] b;
        try {
            if (v.isObject()) {
                v.object("repeat", "length");
                byte[] pattern = HexFormat.of().parseHex(v.text("repeat"));
                long length = v.integer("length");
                if (pattern.length == 0 || length < 0 || length > 200_000_000L) {
                    throw v.error("repeat needs a non-empty pattern and a length of 0..200000000");
                }
                b = new byte[(int) length];
                for (int i = 0; i < b.length; i++) {
                    b[i] = pattern[i % pattern.length];
                }
            } else {
                b = HexFormat.of().parseHex(v.text());
            }
        } catch (IllegalArgumentException e) {
            throw v.error("not hex: " + e.getMessage());
        }
        if (type == DataType.BINARY && b.length > sizeInBytes) {
            throw v.error(b.length + " bytes do not fit BINARY(" + sizeInBytes + ")");
        }
        return b;
    }

    /** Checks that a decimal fits NUMERIC(precision, scale) without rounding. */
    static BigDecimal numeric(Desc v, BigDecimal d, int precision, int scale) {
        BigDecimal s;
        try {
            s = d.setScale(scale);
        } catch (ArithmeticException e) {
            throw v.error(d.toPlainString() + " has more than " + scale + " decimal places");
        }
        BigInteger unscaled = s.unscaledValue().abs();
        if (unscaled.toString().length() > precision && unscaled.signum() != 0) {
            throw v.error(d.toPlainString() + " does not fit NUMERIC(" + precision + "," + scale + ")");
        }
        return s;
    }
}
