package upsizer.mdbgen;

import com.fasterxml.jackson.databind.JsonNode;
import java.math.BigDecimal;
import java.util.ArrayList;
import java.util.Arrays;
import java.util.Iterator;
import java.util.List;
import java.util.Set;
import java.util.TreeSet;

/**
 * One node of a description with its path ("tables[2].columns[0]"), for readable errors. Objects
 * are checked against the keys they may have, so a misspelt key fails instead of being ignored.
 * Keys "comment" and any key starting with "_" are always allowed and ignored.
 */
final class Desc {
    final JsonNode node;
    final String path;

    Desc(JsonNode node, String path) {
        this.node = node;
        this.path = path;
    }

    DescriptionException error(String message) {
        return new DescriptionException(path, message);
    }

    boolean isObject() {
        return node.isObject();
    }

    Desc object(String... allowed) {
        if (!node.isObject()) {
            throw error("expected an object");
        }
        Set<String> ok = new TreeSet<>(Arrays.asList(allowed));
        Set<String> bad = new TreeSet<>();
        for (Iterator<String> it = node.fieldNames(); it.hasNext();) {
            String k = it.next();
            if (!ok.contains(k) && !k.equals("comment") && !k.startsWith("_")) {
                bad.add(k);
            }
        }
        if (!bad.isEmpty()) {
            throw error("unknown key(s) " + bad + "; allowed: " + ok);
        }
        return this;
    }

    /** An object whose keys are names chosen by the author (column names, property names). */
    Desc freeObject() {
        if (!node.isObject()) {
            throw error("expected an object");
        }
        return this;
    }

    /** Its keys, without "comment" and "_..." keys. */
    List<String> keys() {
        List<String> out = new ArrayList<>();
        for (Iterator<String> it = node.fieldNames(); it.hasNext();) {
            String k = it.next();
            if (!k.equals("comment") && !k.startsWith("_")) {
                out.add(k);
            }
        }
        return out;
    }

    boolean has(String key) {
        return node.has(key) && !node.get(key).isNull();
    }

    Desc get(String key) {
        if (!has(key)) {
            throw error("missing \"" + key + "\"");
        }
        return new Desc(node.get(key), path + "." + key);
    }

    /** The member, JSON null included (a NULL cell); missing keys are errors. */
    Desc member(String key) {
        if (!node.has(key)) {
            throw error("missing \"" + key + "\"");
        }
        return new Desc(node.get(key), path + "." + key);
    }

    Desc opt(String key) {
        return has(key) ? new Desc(node.get(key), path + "." + key) : null;
    }

    List<Desc> list() {
        if (!node.isArray()) {
            throw error("expected an array");
        }
        List<Desc> out = new ArrayList<>();
        for (int i = 0; i < node.size(); i++) {
            out.add(new Desc(node.get(i), path + "[" + i + "]"));
        }
        return out;
    }

    List<Desc> list(String key) {
        return has(key) ? get(key).list() : List.of();
    }

    String text() {
        if (!node.isTextual()) {
            throw error("expected a string");
        }
        return node.textValue();
    }

    String text(String key) {
        return get(key).text();
    }

    String text(String key, String dflt) {
        return has(key) ? text(key) : dflt;
    }

    boolean bool(String key, boolean dflt) {
        if (!has(key)) {
            return dflt;
        }
        JsonNode n = node.get(key);
        if (!n.isBoolean()) {
            throw get(key).error("expected true or false");
        }
        return n.booleanValue();
    }

    long integer() {
        if (!node.isIntegralNumber() || !node.canConvertToLong()) {
            throw error("expected an integer");
        }
        return node.longValue();
    }

    long integer(String key, long dflt) {
        return has(key) ? get(key).integer() : dflt;
    }

    long integer(String key) {
        return get(key).integer();
    }

    /** A number given as a JSON number or a decimal string, exactly. */
    BigDecimal decimal() {
        try {
            if (node.isNumber()) {
                return node.decimalValue();
            }
            if (node.isTextual()) {
                return new BigDecimal(node.textValue().trim());
            }
        } catch (NumberFormatException e) {
            // reported below
        }
        throw error("expected a number or a decimal string");
    }

    BigDecimal decimal(String key, BigDecimal dflt) {
        return has(key) ? get(key).decimal() : dflt;
    }

    double fraction(String key) {
        if (!has(key)) {
            return 0.0;
        }
        double f = get(key).decimal().doubleValue();
        if (!(f >= 0.0 && f <= 1.0)) {
            throw get(key).error("expected a fraction between 0 and 1");
        }
        return f;
    }
}
