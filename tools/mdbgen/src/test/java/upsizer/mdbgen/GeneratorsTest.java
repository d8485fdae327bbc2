package upsizer.mdbgen;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertThrows;
import static org.junit.jupiter.api.Assertions.assertTrue;
import static upsizer.mdbgen.TestSupport.q;

import com.fasterxml.jackson.databind.ObjectMapper;
import com.healthmarketscience.jackcess.DataType;
import java.io.IOException;
import java.math.BigDecimal;
import java.time.LocalDateTime;
import java.util.ArrayList;
import java.util.HashSet;
import java.util.List;
import java.util.Set;
import org.junit.jupiter.api.Test;

class GeneratorsTest {
    private static List<Object> draw(String desc, ColumnDef col, int n) throws IOException {
        Generators.Gen g = Generators.create(new Desc(new ObjectMapper().readTree(q(desc)), "g"), col, 3, "T");
        List<Object> out = new ArrayList<>();
        for (int i = 0; i < n; i++) {
            out.add(g.next(i));
        }
        return out;
    }

    private static ColumnDef col(DataType t, int size) {
        return new ColumnDef("C", t, size, 12, 3, false);
    }

    @Test
    void numbersStayInRangeAndReachBothEnds() throws IOException {
        Set<Object> seen = new HashSet<>(draw("{'kind': 'int', 'min': -2, 'max': 1}", col(DataType.INT, 0), 200));
        assertEquals(Set.of((short) -2, (short) -1, (short) 0, (short) 1), seen);
        for (Object o : draw("{'kind': 'decimal', 'min': '-1', 'max': '1'}", col(DataType.NUMERIC, 0), 200)) {
            BigDecimal d = (BigDecimal) o;
            assertEquals(3, d.scale());
            assertTrue(d.abs().compareTo(BigDecimal.ONE) <= 0, d.toString());
        }
        assertEquals(List.of(10, 7, 4), draw("{'kind': 'sequence', 'start': 10, 'step': -3}", col(DataType.LONG, 0), 3));
        assertEquals(List.of("A-0005", "A-0006"), draw("{'kind': 'sequence', 'start': 5, 'format': 'A-%04d'}", col(DataType.TEXT, 10), 2));
        assertEquals(List.of("x", "y", "x"), draw("{'kind': 'cycle', 'values': ['x', 'y']}", col(DataType.TEXT, 10), 3));
    }

    @Test
    void textLengthsAlphabetsAndSurrogatePairs() throws IOException {
        for (Object o : draw("{'kind': 'text', 'minLength': 1, 'maxLength': 7, 'alphabet': 'emoji'}", col(DataType.TEXT, 7), 300)) {
            String s = (String) o;
            assertTrue(s.length() >= 1 && s.length() <= 7, s);
            for (int i = 0; i < s.length(); i++) {
                char c = s.charAt(i);
                boolean paired = Character.isHighSurrogate(c) ? i + 1 < s.length() && Character.isLowSurrogate(s.charAt(++i))
                        : !Character.isLowSurrogate(c);
                assertTrue(paired, "no half pair in " + s);
            }
        }
        for (Object o : draw("{'kind': 'text', 'length': 50, 'alphabet': 'latin1'}", col(DataType.MEMO, 0), 50)) {
            assertTrue(((String) o).chars().allMatch(c -> c >= 0x20 && c <= 0xFF && (c < 0x7F || c >= 0xA0)), (String) o);
        }
    }

    @Test
    void datesKeepTheirResolutionAndRange() throws IOException {
        LocalDateTime from = LocalDateTime.parse("1899-12-29T00:00");
        LocalDateTime to = LocalDateTime.parse("1899-12-31T00:00");
        for (Object o : draw("{'kind': 'date', 'from': '1899-12-29', 'to': '1899-12-31', 'resolution': 'second'}",
                col(DataType.SHORT_DATE_TIME, 0), 200)) {
            LocalDateTime t = (LocalDateTime) o;
            assertTrue(!t.isBefore(from) && !t.isAfter(to), t.toString());
            assertEquals(0, t.getNano());
        }
    }

    @Test
    void nullsAndEmptiesComeInTheirShare() throws IOException {
        List<Object> v = draw("{'kind': 'text', 'length': 3, 'nulls': 0.25, 'empties': 0.25}", col(DataType.TEXT, 3), 4000);
        long nulls = v.stream().filter(o -> o == null).count();
        long empties = v.stream().filter(o -> "".equals(o)).count();
        assertTrue(Math.abs(nulls - 1000) < 150 && Math.abs(empties - 1000) < 150, nulls + " nulls, " + empties + " empties");
    }

    @Test
    void refusesWhatTheColumnCannotHold() {
        String[][] cases = {
            {"{'kind': 'text', 'maxLength': 5}", "g: \"text\" fills TEXT and MEMO columns"},
            {"{'kind': 'int', 'min': 0, 'max': 256}", "g: 256 is outside 0..255"},
            {"{'kind': 'int', 'min': 0, 'max': 1, 'empties': 0.5}", "g: only text and binary columns have empty values"},
            {"{'kind': 'sequence', 'format': '%s'}", "g: \"format\" is for text columns"},
            {"{'kind': 'rnd'}", "g: unknown generator kind \"rnd\"; known: sequence, int, decimal, double, text, date, bool, guid, bytes, pick, cycle, const"},
        };
        for (String[] c : cases) {
            DescriptionException e = assertThrows(DescriptionException.class, () -> draw(c[0], col(DataType.BYTE, 0), 1));
            assertEquals(c[1], e.getMessage());
        }
    }
}
