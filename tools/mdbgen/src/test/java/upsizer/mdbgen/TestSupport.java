package upsizer.mdbgen;

import com.fasterxml.jackson.databind.JsonNode;
import com.fasterxml.jackson.databind.ObjectMapper;
import java.io.IOException;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.Map;

/** Builds a description given as text and reads the dump back as a tree. */
final class TestSupport {
    private TestSupport() {}

    static Path build(Path dir, String name, String json) throws IOException {
        return build(dir, name, json, null);
    }

    static Path build(Path dir, String name, String json, Long rows) throws IOException {
        Path desc = dir.resolve(name + ".json");
        Files.writeString(desc, json);
        Path mdb = dir.resolve(name + ".mdb");
        new Builder(new Desc(Main.readDescription(desc), name), rows, Map.of(), null).build(mdb);
        return mdb;
    }

    static JsonNode dump(Path mdb) throws IOException {
        Path out = mdb.resolveSibling(mdb.getFileName() + ".dump.json");
        new Dumper(true).dump(mdb, out);
        return new ObjectMapper().readTree(out.toFile());
    }

    static JsonNode table(JsonNode dump, String name) {
        for (JsonNode t : dump.get("tables")) {
            if (t.get("name").asText().equals(name)) {
                return t;
            }
        }
        throw new AssertionError("no table " + name);
    }

    /** Double quotes for readable JSON in Java text blocks: 'a' becomes "a". */
    static String q(String s) {
        return s.replace('\'', '"');
    }
}
