package upsizer.mdbgen;

import com.healthmarketscience.jackcess.DataType;
import java.math.BigDecimal;
import java.math.BigInteger;
import java.math.RoundingMode;
import java.time.LocalDateTime;
import java.time.ZoneOffset;
import java.util.ArrayList;
import java.util.List;
import java.util.Locale;

/**
 * Per-column value generators for "generate" blocks. Each column draws from its own random
 * stream (seeded from the seed, the table and the column name), so a row set is fixed by the
 * description alone, and adding a column leaves the other columns' values unchanged.
 */
final class Generators {
    /** Gives the value of a column for row i (0-based) of a generated block. */
    interface Gen {
        Object next(long i);
    }

    private Generators() {}

    static Gen create(Desc g, ColumnDef col, long seed, String table) {
        String kind = g.text("kind");
        Rng rnd = Rng.forColumn(seed, table, col.name(), 0);
        Rng holes = Rng.forColumn(seed, table, col.name(), 1);
        Gen inner;
        switch (kind) {
            case "sequence": inner = sequence(g.object("kind", "start", "step", "format", "nulls", "empties"), col); break;
            case "int": inner = integer(g.object("kind", "min", "max", "nulls", "empties"), col, rnd); break;
            case "decimal": inner = decimal(g.object("kind", "min", "max", "scale", "nulls", "empties"), col, rnd); break;
            case "double": inner = dbl(g.object("kind", "min", "max", "nulls", "empties"), col, rnd); break;
            case "text": inner = text(g.object("kind", "length", "minLength", "maxLength", "alphabet", "chars", "nulls", "empties"), col, rnd); break;
            case "date": inner = date(g.object("kind", "from", "to", "resolution", "nulls", "empties"), col, rnd); break;
            case "bool": inner = bool(g.object("kind", "trueFraction", "nulls", "empties"), col, rnd); break;
            case "guid": inner = guid(g.object("kind", "nulls", "empties"), col, rnd); break;
            case "bytes": inner = bytes(g.object("kind", "length", "minLength", "maxLength", "nulls", "empties"), col, rnd); break;
            case "pick": inner = pick(g.object("kind", "values", "nulls", "empties"), col, rnd, false); break;
            case "cycle": inner = pick(g.object("kind", "values", "nulls", "empties"), col, rnd, true); break;
            case "const": {
                g.object("kind", "value", "nulls", "empties");
                Object value = Values.literal(g.get("value"), col);
                inner = i -> value;
                break;
            }
            default:
                throw g.error("unknown generator kind \"" + kind + "\"; known: sequence, int, decimal, double, "
                        + "text, date, bool, guid, bytes, pick, cycle, const");
        }
        double nulls = g.fraction("nulls");
        double empties = g.fraction("empties");
        if (nulls + empties > 1.0) {
            throw g.error("nulls + empties exceed 1");
        }
        if (empties > 0 && !col.isText() && !col.isBinary()) {
            throw g.error("only text and binary columns have empty values");
        }
        if (nulls == 0 && empties == 0) {
            return inner;
        }
        Object empty = col.isText() ? "" : new byte[0];
        return i -> {
            double u = holes.nextDouble();
            if (u < nulls) {
                return null;
            }
            if (u < nulls + empties) {
                return empty;
            }
            return inner.next(i);
        };
    }

    private static Gen sequence(Desc g, ColumnDef col) {
        BigDecimal start = g.decimal("start", BigDecimal.ONE);
        BigDecimal step = g.decimal("step", BigDecimal.ONE);
        if (col.isText()) {
            String format = g.text("format", "%d");
            if (start.scale() > 0 || step.scale() > 0) {
                throw g.error("a text sequence counts in whole numbers");
            }
            long s = start.longValueExact();
            long d = step.longValueExact();
            try {
                String.format(Locale.ROOT, format, s);
            } catch (java.util.IllegalFormatException e) {
                throw g.error("\"format\" must take one whole number, like \"DOC-%09d\": " + e.getMessage());
            }
            return i -> {
                String t = String.format(Locale.ROOT, format, s + i * d);
                if (col.type() == DataType.TEXT && t.length() > col.size()) {
                    throw g.error("\"" + t + "\" does not fit TEXT(" + col.size() + ")");
                }
                return t;
            };
        }
        if (g.has("format")) {
            throw g.error("\"format\" is for text columns");
        }
        return i -> number(g, col, start.add(step.multiply(BigDecimal.valueOf(i))));
    }

    /** A number as the column type wants it, refused if it does not fit. */
    private static Object number(Desc g, ColumnDef col, BigDecimal d) {
        try {
            switch (col.type()) {
                case BYTE: return fit(g, d, 0, 255).intValue();
                case INT: return (short) fit(g, d, Short.MIN_VALUE, Short.MAX_VALUE).intValue();
                case LONG: return fit(g, d, Integer.MIN_VALUE, Integer.MAX_VALUE).intValue();
                case MONEY: return Values.money(g, d);
                case NUMERIC: return Values.numeric(g, d, col.precision(), col.scale());
                case FLOAT: return d.floatValue();
                case DOUBLE: return d.doubleValue();
                default: throw g.error("a number generator cannot fill a " + col.type() + " column");
            }
        } catch (ArithmeticException e) {
            throw g.error(d.toPlainString() + " is not a whole number");
        }
    }

    private static BigDecimal fit(Desc g, BigDecimal d, long min, long max) {
        BigInteger n = d.toBigIntegerExact();
        if (n.compareTo(BigInteger.valueOf(min)) < 0 || n.compareTo(BigInteger.valueOf(max)) > 0) {
            throw g.error(n + " is outside " + min + ".." + max);
        }
        return d;
    }

    private static Gen integer(Desc g, ColumnDef col, Rng rnd) {
        long min = g.integer("min");
        long max = g.integer("max");
        if (min > max || max - min >= (1L << 62)) {
            throw g.error("need min <= max and a span below 2^62");
        }
        number(g, col, BigDecimal.valueOf(min));
        number(g, col, BigDecimal.valueOf(max));
        return i -> number(g, col, BigDecimal.valueOf(rnd.between(min, max)));
    }

    private static Gen decimal(Desc g, ColumnDef col, Rng rnd) {
        int dfltScale = col.type() == DataType.MONEY ? 4 : col.scale();
        int scale = (int) g.integer("scale", dfltScale);
        BigInteger lo = g.get("min").decimal().setScale(scale, RoundingMode.CEILING).unscaledValue();
        BigInteger hi = g.get("max").decimal().setScale(scale, RoundingMode.FLOOR).unscaledValue();
        if (lo.compareTo(hi) > 0) {
            throw g.error("min > max");
        }
        BigInteger span = hi.subtract(lo).add(BigInteger.ONE);
        if (span.bitLength() > 62) {
            throw g.error("range too wide for the given scale");
        }
        long lSpan = span.longValue();
        return i -> number(g, col, new BigDecimal(lo.add(BigInteger.valueOf(rnd.between(0, lSpan - 1))), scale));
    }

    private static Gen dbl(Desc g, ColumnDef col, Rng rnd) {
        double min = g.get("min").decimal().doubleValue();
        double max = g.get("max").decimal().doubleValue();
        if (!(min <= max)) {
            throw g.error("min > max");
        }
        if (col.type() == DataType.FLOAT) {
            return i -> (float) (min + rnd.nextDouble() * (max - min));
        }
        if (col.type() == DataType.DOUBLE) {
            return i -> min + rnd.nextDouble() * (max - min);
        }
        throw g.error("\"double\" fills FLOAT and DOUBLE columns");
    }

    // Code point ranges, [from, to] pairs. "latin1" stays within what Jet can store compressed
    // (every character 0x01..0xFF); "greek", "cjk" and "emoji" never compress.
    private static int[] alphabet(Desc g, String name) {
        switch (name) {
            case "letters": return new int[] {'a', 'z', 'A', 'Z', '0', '9', ' ', ' '};
            case "ascii": return new int[] {0x20, 0x7E};
            case "controls": return new int[] {0x01, 0x1F, 0x7F, 0x7F, 'a', 'z'};
            case "latin1": return new int[] {0x20, 0x7E, 0xA0, 0xFF};
            case "greek": return new int[] {0x391, 0x3A1, 0x3A3, 0x3A9, 0x3B1, 0x3C9};
            case "cjk": return new int[] {0x4E00, 0x9FA5};
            case "emoji": return new int[] {0x1F600, 0x1F64F};
            case "mixed": return new int[] {'a', 'z', 'a', 'z', 'a', 'z', 'A', 'Z', 0xC0, 0xFF, 0x391, 0x3A9, 0x4E00, 0x4E20, 0x1F600, 0x1F610};
            default: throw g.error("unknown alphabet \"" + name + "\"; known: letters, ascii, controls, latin1, greek, cjk, emoji, mixed");
        }
    }

    private static int[] codePoints(Desc g) {
        if (g.has("chars")) {
            int[] cps = g.text("chars").codePoints().toArray();
            if (cps.length == 0) {
                throw g.error("\"chars\" is empty");
            }
            return cps;
        }
        int[] ranges = alphabet(g, g.text("alphabet", "letters"));
        List<Integer> all = new ArrayList<>();
        for (int r = 0; r < ranges.length; r += 2) {
            for (int c = ranges[r]; c <= ranges[r + 1]; c++) {
                all.add(c);
            }
        }
        return all.stream().mapToInt(Integer::intValue).toArray();
    }

    private static long[] lengths(Desc g, long maxAllowed) {
        long min;
        long max;
        if (g.has("length")) {
            min = max = g.integer("length");
        } else {
            min = g.integer("minLength", 0);
            max = g.integer("maxLength");
        }
        if (min < 0 || min > max || max > maxAllowed) {
            throw g.error("need 0 <= minLength <= maxLength <= " + maxAllowed);
        }
        return new long[] {min, max};
    }

    private static Gen text(Desc g, ColumnDef col, Rng rnd) {
        if (!col.isText()) {
            throw g.error("\"text\" fills TEXT and MEMO columns");
        }
        long[] len = lengths(g, col.type() == DataType.TEXT ? col.size() : 100_000_000L);
        int[] cps = codePoints(g);
        return i -> {
            int n = (int) rnd.between(len[0], len[1]);
            StringBuilder b = new StringBuilder(n);
            while (b.length() < n) {
                int cp = cps[(int) rnd.between(0, cps.length - 1)];
                if (Character.charCount(cp) > n - b.length()) {
                    cp = 'x'; // no room for a surrogate pair in the last unit
                }
                b.appendCodePoint(cp);
            }
            return b.toString();
        };
    }

    private static Gen date(Desc g, ColumnDef col, Rng rnd) {
        if (col.type() != DataType.SHORT_DATE_TIME) {
            throw g.error("\"date\" fills SHORT_DATE_TIME columns");
        }
        LocalDateTime from = Values.parseDateTime(g.get("from"));
        LocalDateTime to = Values.parseDateTime(g.get("to"));
        String resolution = g.text("resolution", "second");
        long unit;
        switch (resolution) {
            case "day": unit = JetDate.MS_PER_DAY; break;
            case "second": unit = 1000L; break;
            case "millisecond": unit = 1L; break;
            default: throw g.error("resolution is day, second or millisecond");
        }
        long lo = Math.floorDiv(from.toInstant(ZoneOffset.UTC).toEpochMilli() + unit - 1, unit);
        long hi = Math.floorDiv(to.toInstant(ZoneOffset.UTC).toEpochMilli(), unit);
        if (lo > hi) {
            throw g.error("from is after to");
        }
        return i -> {
            long ms = rnd.between(lo, hi) * unit;
            return LocalDateTime.ofEpochSecond(Math.floorDiv(ms, 1000L),
                    (int) Math.floorMod(ms, 1000L) * 1_000_000, ZoneOffset.UTC);
        };
    }

    private static Gen bool(Desc g, ColumnDef col, Rng rnd) {
        if (col.type() != DataType.BOOLEAN) {
            throw g.error("\"bool\" fills BOOLEAN columns");
        }
        double p = g.has("trueFraction") ? g.fraction("trueFraction") : 0.5;
        return i -> rnd.nextDouble() < p;
    }

    private static Gen guid(Desc g, ColumnDef col, Rng rnd) {
        if (col.type() != DataType.GUID) {
            throw g.error("\"guid\" fills GUID columns");
        }
        return i -> {
            String h = String.format("%016X%016X", rnd.next(), rnd.next());
            return "{" + h.substring(0, 8) + "-" + h.substring(8, 12) + "-" + h.substring(12, 16) + "-"
                    + h.substring(16, 20) + "-" + h.substring(20) + "}";
        };
    }

    private static Gen bytes(Desc g, ColumnDef col, Rng rnd) {
        if (!col.isBinary()) {
            throw g.error("\"bytes\" fills OLE and BINARY columns");
        }
        long[] len = lengths(g, col.type() == DataType.BINARY ? col.size() : 200_000_000L);
        return i -> {
            byte[] b = new byte[(int) rnd.between(len[0], len[1])];
            for (int k = 0; k < b.length; k++) {
                b[k] = (byte) rnd.next();
            }
            return b;
        };
    }

    private static Gen pick(Desc g, ColumnDef col, Rng rnd, boolean inOrder) {
        List<Object> values = new ArrayList<>();
        for (Desc v : g.get("values").list()) {
            values.add(Values.literal(v, col));
        }
        if (values.isEmpty()) {
            throw g.error("\"values\" is empty");
        }
        if (inOrder) {
            return i -> values.get((int) (i % values.size()));
        }
        return i -> values.get((int) rnd.between(0, values.size() - 1));
    }
}
