package upsizer.mdbgen;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.fasterxml.jackson.databind.JsonNode;
import java.io.IOException;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.List;
import java.util.Map;
import java.util.stream.Collectors;
import java.util.stream.Stream;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.api.io.TempDir;

/** The shipped examples are the round-trip inputs of the C++ reader: they must keep building. */
class ExamplesTest {
    @TempDir
    Path dir;

    @Test
    void everyExampleBuildsAndReadsBackWhole() throws IOException {
        Path examples = Path.of(System.getProperty("mdbgen.examples", "examples"));
        List<Path> files;
        try (Stream<Path> s = Files.list(examples)) {
            files = s.filter(p -> p.toString().endsWith(".json")).sorted().collect(Collectors.toList());
        }
        assertTrue(files.size() >= 9, "examples found: " + files);
        for (Path f : files) {
            String name = f.getFileName().toString().replace(".json", "");
            Desc root = new Desc(Main.readDescription(f), f.getFileName().toString());
            Path mdb = dir.resolve(name + ".mdb");
            // the benchmark table is built small here; its million rows are measured elsewhere
            new Builder(root, name.equals("big") ? 100L : null, Map.of(), null).build(mdb);
            JsonNode dump = TestSupport.dump(mdb);
            int tables = 0;
            for (JsonNode t : dump.get("tables")) {
                if (!t.get("system").asBoolean()) {
                    tables++;
                    assertEquals(t.get("rowCount").asLong(), t.get("rowsRead").asLong(), name + "." + t.get("name"));
                }
            }
            assertEquals(root.list("tables").size(), tables, name);
            String password = root.text("password", "");
            assertEquals(password, dump.get("file").get("password").asText(), name);
            assertEquals(password, dump.get("file").get("jackcessPassword").asText(), name);
            Files.delete(mdb);
        }
    }
}
