package upsizer.mdbgen;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assumptions.assumeTrue;
import static upsizer.mdbgen.TestSupport.q;

import com.fasterxml.jackson.databind.JsonNode;
import java.io.IOException;
import java.nio.file.Files;
import java.nio.file.Path;
import java.nio.file.StandardCopyOption;
import java.util.ArrayList;
import java.util.List;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.api.io.TempDir;

/** The dump of files Access wrote, against facts known about them independently of Jackcess. */
class AccessFixturesTest {
    @TempDir
    Path dir;

    private JsonNode dumpCopy(String name) throws IOException {
        Path fixtures = Path.of(System.getProperty("mdbgen.fixtures", "/nonexistent"));
        assumeTrue(Files.isDirectory(fixtures), "Access-written fixtures not found: " + fixtures);
        Path copy = dir.resolve(name);
        Files.copy(fixtures.resolve(name), copy, StandardCopyOption.REPLACE_EXISTING);
        return TestSupport.dump(copy);
    }

    @Test
    void encodedFileReadsThroughItsKey() throws IOException {
        JsonNode d = dumpCopy("encodedV2000.mdb");
        assertEquals("a7b773e0", d.get("file").get("databaseKey").asText());
        assertEquals(q("[[1,'hello',0],[2,'world',42]]"), TestSupport.table(d, "Table1").get("rows").toString());
    }

    @Test
    void deletedColumnsLeaveGapsInColumnNumbers() throws IOException {
        List<String> cols = new ArrayList<>();
        for (JsonNode c : TestSupport.table(dumpCopy("delColTestV2000.mdb"), "Table1").get("columns")) {
            cols.add(c.get("name").asText() + "#" + c.get("number").asInt() + "@" + c.get("index").asInt());
        }
        assertEquals(List.of("id#0@0", "id2#2@1", "data#3@2", "data2#5@3"), cols);
    }

    @Test
    void basicTypesOfAnAccessTable() throws IOException {
        // The first row of testV2000's Table1 as Access shows it: 444.555, 1974-09-21, 3.5 (currency), Yes.
        JsonNode row = TestSupport.table(dumpCopy("testV2000.mdb"), "Table1").get("rows").get(0);
        assertEquals(q("['abcdefg','hijklmnop',2,222,333333333,'407bc8e147ae147b',"
                + "{'bits':'40daa74000000000','iso':'1974-09-21T00:00:00.000'},'35000',true]"), row.toString());
        assertEquals(444.555, Double.longBitsToDouble(Long.parseUnsignedLong(row.get(5).asText(), 16)));
    }
}
