package upsizer.mdbgen;

import java.io.IOException;
import java.nio.charset.StandardCharsets;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.ArrayList;
import java.util.LinkedHashMap;
import java.util.List;
import java.util.Locale;
import java.util.Map;

/**
 * The suite's system tables as schema/catalogue.tsv states them (tables with fields and indexes,
 * then relations), read into plain records. The C++ side reads the same file with
 * schema::Catalogue; this reader only checks what the Solvaria builder relies on.
 */
final class CatalogueFile {
    /** type: I2, I4, F8, CUR, BOOL, GUID, MEMO, DATE or V (text of size characters). */
    record Field(String name, String type, int size, String mark, String defaultValue) {}

    /** fields: "+A;-B"; flags: 1 primary key, 4 unique (2 carries no meaning). */
    record Index(String name, String fields, int flags) {}

    record Table(String name, List<Field> fields, List<Index> indexes) {
        Field field(String fieldName) {
            for (Field f : fields) {
                if (f.name().equalsIgnoreCase(fieldName)) {
                    return f;
                }
            }
            return null;
        }
    }

    /** table holds the key, relatedTable is the parent; cascade as written ("delete, update"). */
    record Relation(String name, String table, List<String> fields, String relatedTable,
            List<String> relatedFields, boolean cascadeDelete, boolean cascadeUpdate) {}

    final List<Table> tables = new ArrayList<>();
    final List<Relation> relations = new ArrayList<>();
    private final Map<String, Table> byName = new LinkedHashMap<>();

    Table table(String name) {
        return byName.get(name.toUpperCase(Locale.ROOT));
    }

    int fieldCount() {
        return tables.stream().mapToInt(t -> t.fields().size()).sum();
    }

    int indexCount() {
        return tables.stream().mapToInt(t -> t.indexes().size()).sum();
    }

    static CatalogueFile read(Path file) throws IOException {
        return parse(Files.readString(file, StandardCharsets.UTF_8), file.getFileName().toString());
    }

    static CatalogueFile parse(String text, String fileName) {
        CatalogueFile c = new CatalogueFile();
        String[] lines = text.split("\r?\n", -1);
        List<Field> fields = null;
        List<Index> indexes = null;
        for (int n = 0; n < lines.length; n++) {
            String line = lines[n];
            if (line.isBlank() || line.startsWith("#")) {
                continue;
            }
            String at = fileName + ":" + (n + 1);
            String[] p = line.split("\t", -1);
            switch (p[0]) {
                case "table" -> {
                    need(p, 2, 2, at);
                    fields = new ArrayList<>();
                    indexes = new ArrayList<>();
                    Table t = new Table(p[1], fields, indexes);
                    if (c.byName.put(p[1].toUpperCase(Locale.ROOT), t) != null) {
                        throw new DescriptionException(at, "table " + p[1] + " stated twice");
                    }
                    c.tables.add(t);
                }
                case "field" -> {
                    need(p, 3, 5, at);
                    if (fields == null) {
                        throw new DescriptionException(at, "a field before any table");
                    }
                    String type = p[2];
                    int size = 0;
                    if (type.startsWith("V")) {
                        try {
                            size = Integer.parseInt(type.substring(1));
                        } catch (NumberFormatException e) {
                            size = -1;
                        }
                        if (size < 1 || size > 255) {
                            throw new DescriptionException(at, "text size of " + type + " is not 1..255");
                        }
                        type = "V";
                    } else if (!List.of("I2", "I4", "F8", "CUR", "BOOL", "GUID", "MEMO", "DATE").contains(type)) {
                        throw new DescriptionException(at, "unknown type " + type);
                    }
                    String mark = "";
                    String dflt = null;
                    for (int k = 3; k < p.length; k++) {
                        if (p[k].startsWith("=")) {
                            dflt = p[k].substring(1);
                        } else if (List.of("A", "R", "Rz", "O").contains(p[k])) {
                            mark = p[k];
                        } else {
                            throw new DescriptionException(at, "unknown mark " + p[k]);
                        }
                    }
                    fields.add(new Field(p[1], type, size, mark, dflt));
                }
                case "index" -> {
                    need(p, 4, 4, at);
                    if (indexes == null) {
                        throw new DescriptionException(at, "an index before any table");
                    }
                    indexes.add(new Index(p[1], p[2], Integer.parseInt(p[3])));
                }
                case "relation" -> {
                    need(p, 7, 7, at);
                    boolean del = p[6].contains("delete");
                    boolean upd = p[6].contains("update");
                    if (!del && !upd && !p[6].equals("none")) {
                        throw new DescriptionException(at, "unknown cascade " + p[6]);
                    }
                    c.relations.add(new Relation(p[1], p[2], List.of(p[3].split(";")), p[4],
                            List.of(p[5].split(";")), del, upd));
                }
                default -> throw new DescriptionException(at, "unknown line kind " + p[0]);
            }
        }
        return c;
    }

    private static void need(String[] p, int min, int max, String at) {
        if (p.length < min || p.length > max) {
            throw new DescriptionException(at, p[0] + " line has " + p.length + " columns, expected "
                    + (min == max ? String.valueOf(min) : min + ".." + max));
        }
    }
}
