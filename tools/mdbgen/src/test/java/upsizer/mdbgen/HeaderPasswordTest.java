package upsizer.mdbgen;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertNull;
import static org.junit.jupiter.api.Assertions.assertThrows;
import static org.junit.jupiter.api.Assumptions.assumeTrue;
import static upsizer.mdbgen.TestSupport.q;

import com.healthmarketscience.jackcess.Database;
import com.healthmarketscience.jackcess.DatabaseBuilder;
import com.healthmarketscience.jackcess.impl.JetFormat;
import java.io.IOException;
import java.nio.file.Files;
import java.nio.file.Path;
import java.nio.file.StandardCopyOption;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.api.io.TempDir;

class HeaderPasswordTest {
    @TempDir
    Path dir;

    private static String jackcessPassword(Path mdb) throws IOException {
        try (Database db = new DatabaseBuilder(mdb.toFile()).setReadOnly(true).open()) {
            return db.getDatabasePassword();
        }
    }

    @Test
    void headerKeyStreamIsTheOneJackcessUnmasksWith() {
        assertArrayEquals(JetFormat.VERSION_4.HEADER_MASK, HeaderPassword.headerMask());
    }

    @Test
    void passwordsReadBackTheSameByBothReaders() throws IOException {
        // 20 characters, non-Latin ones included; then a creation date before 1899, whose
        // negative day number makes all four bytes of the date mask non-zero.
        String[][] cases = {{"Geheim", null}, {"abcdefghij0123456789", null}, {"пароль-ÄÖ✓", null},
            {"x", "{'jet': -40000.75}"}, {"with date", "'2010-10-06T19:44:07'"}};
        int n = 0;
        for (String[] c : cases) {
            String date = c[1] == null ? "" : ", 'creationDate': " + c[1];
            Path mdb = TestSupport.build(dir, "pw" + n++, q("{'password': '" + c[0] + "'" + date + ", 'tables': []}"));
            assertEquals(c[0], HeaderPassword.read(mdb));
            assertEquals(c[0], jackcessPassword(mdb));
            assertEquals(c[0], TestSupport.dump(mdb).get("file").get("jackcessPassword").asText());
        }
    }

    @Test
    void noPasswordAndTooLongPassword() throws IOException {
        Path plain = TestSupport.build(dir, "plain", "{\"tables\": []}");
        assertEquals("", HeaderPassword.read(plain));
        assertNull(jackcessPassword(plain));
        DescriptionException e = assertThrows(DescriptionException.class,
                () -> TestSupport.build(dir, "long", q("{'password': 'abcdefghij0123456789X'}")));
        assertEquals("long.password: a Jet 4 password has at most 20 characters", e.getMessage());
        assertThrows(IOException.class, () -> HeaderPassword.read(dir.resolve("long.json")));
    }

    @Test
    void accessWrittenFilesUnmaskToNoPassword() throws IOException {
        // Access leaves the 40 bytes masked by both the key stream and the creation date, so an
        // empty password only reads back as zeros if the date mask is applied the way Access does.
        Path fixtures = Path.of(System.getProperty("mdbgen.fixtures", "/nonexistent"));
        assumeTrue(Files.isDirectory(fixtures), "Access-written fixtures not found: " + fixtures);
        for (String name : new String[] {"testV2000.mdb", "encodedV2000.mdb", "adox_jet4.mdb"}) {
            Path copy = dir.resolve(name);
            Files.copy(fixtures.resolve(name), copy, StandardCopyOption.REPLACE_EXISTING);
            assertEquals("", HeaderPassword.read(copy), name);
        }
    }
}
