package upsizer.mdbgen;

import java.time.LocalDate;
import java.time.LocalDateTime;

/**
 * Jet keeps a date/time as a double: whole days since 1899-12-30, and the time of day as a
 * fraction. Before 1899-12-30 the value is negative, but the fraction still counts forward from
 * midnight of the day: -1.25 is 1899-12-29 06:00, not 1899-12-28 18:00. Between -1 and 0 the
 * day part is zero, so -0.25 and 0.25 are the same instant.
 *
 * This is our own conversion, kept apart from Jackcess so the dump's readable text is a second
 * opinion on the stored bits.
 */
final class JetDate {
    static final LocalDate BASE = LocalDate.of(1899, 12, 30);
    static final long MS_PER_DAY = 86_400_000L;

    /** Jet's own range: 0100-01-01 00:00:00 to 9999-12-31 23:59:59.999. */
    static final double MIN = -657434.0;
    static final double MAX = 2958465.0 + 86_399_999.0 / MS_PER_DAY;

    private JetDate() {}

    /**
     * The ISO text "yyyy-MM-ddTHH:mm:ss.SSS" of a Jet date double, rounded to the millisecond, or
     * null when the double is not finite or lies beyond years 1..9999 (Jet itself never stores those).
     */
    static String iso(double value) {
        if (!Double.isFinite(value)) {
            return null;
        }
        LocalDateTime t = toLocalDateTime(value);
        if (t == null || t.getYear() < 1 || t.getYear() > 9999) {
            return null;
        }
        return String.format("%04d-%02d-%02dT%02d:%02d:%02d.%03d", t.getYear(), t.getMonthValue(),
                t.getDayOfMonth(), t.getHour(), t.getMinute(), t.getSecond(), t.getNano() / 1_000_000);
    }

    /** The instant a Jet date double stands for, to the millisecond; null if far out of range. */
    static LocalDateTime toLocalDateTime(double value) {
        if (!Double.isFinite(value) || Math.abs(value) > 4.0e6) {
            return null;
        }
        long day = (long) value; // toward zero: the day of a negative value is its integral part
        double fraction = Math.abs(value - day); // exact: its bits are a subset of the value's
        long ms = Math.round(fraction * MS_PER_DAY); // 86400000 (a rounded "24:00") carries over
        return BASE.plusDays(day).atStartOfDay().plusNanos(ms * 1_000_000L);
    }

    /**
     * The Jet double for a date and time (milliseconds kept, finer parts dropped): whole days, plus
     * the time fraction for days on or after 1899-12-30 and minus it for days before.
     */
    static double fromLocalDateTime(LocalDateTime t) {
        long day = t.toLocalDate().toEpochDay() - BASE.toEpochDay();
        long ms = t.toLocalTime().toNanoOfDay() / 1_000_000L;
        double fraction = (double) ms / MS_PER_DAY;
        return day >= 0 ? day + fraction : day - fraction;
    }
}
