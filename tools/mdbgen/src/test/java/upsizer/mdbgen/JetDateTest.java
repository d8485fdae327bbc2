package upsizer.mdbgen;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertNull;

import com.healthmarketscience.jackcess.impl.ColumnImpl;
import java.time.LocalDateTime;
import org.junit.jupiter.api.Test;

class JetDateTest {
    @Test
    void negativeDatesCountTheTimeForwardFromMidnight() {
        assertEquals("1899-12-29T06:00:00.000", JetDate.iso(-1.25));
        assertEquals("1899-12-30T06:00:00.000", JetDate.iso(-0.25));
        assertEquals("1899-12-30T06:00:00.000", JetDate.iso(0.25));
        assertEquals("1899-12-30T00:00:00.000", JetDate.iso(0.0));
        assertEquals("1899-12-30T00:00:00.000", JetDate.iso(-0.0));
        assertEquals(-1.25, JetDate.fromLocalDateTime(LocalDateTime.parse("1899-12-29T06:00")));
    }

    @Test
    void jetRangeEndsAndRounding() {
        assertEquals("0100-01-01T00:00:00.000", JetDate.iso(JetDate.MIN));
        assertEquals("9999-12-31T23:59:59.999", JetDate.iso(JetDate.MAX));
        // a fraction that rounds up to 24:00 is midnight of the next day, for both signs
        assertEquals("1900-01-01T00:00:00.000", JetDate.iso(Math.nextDown(2.0)));
        assertEquals("1899-12-30T00:00:00.000", JetDate.iso(-1.99999999999));
        assertNull(JetDate.iso(Double.NaN));
        assertNull(JetDate.iso(1e300));
        assertNull(JetDate.iso(-700000.0)); // year 0
    }

    @Test
    void agreesWithJackcessToTheMillisecond() {
        String[] dates = {"0100-01-01T00:00:00.001", "1582-10-04T12:00:00", "1753-01-01T00:00:00",
            "1899-12-29T23:59:59.999", "1899-12-30T00:00:00.001", "1970-01-01T00:00:00",
            "2024-02-29T13:14:15.678", "9999-12-31T23:59:59.999"};
        for (String d : dates) {
            LocalDateTime t = LocalDateTime.parse(d);
            double jackcess = ColumnImpl.toDateDouble(t);
            assertEquals(t, JetDate.toLocalDateTime(jackcess), d + " read back");
            assertEquals(t, JetDate.toLocalDateTime(JetDate.fromLocalDateTime(t)), d + " own round trip");
            assertEquals(jackcess, JetDate.fromLocalDateTime(t), Math.ulp(jackcess), d);
        }
    }
}
