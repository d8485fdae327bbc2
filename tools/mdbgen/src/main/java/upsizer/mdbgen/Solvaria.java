package upsizer.mdbgen;

import com.fasterxml.jackson.databind.JsonNode;
import com.fasterxml.jackson.databind.node.ArrayNode;
import com.fasterxml.jackson.databind.node.JsonNodeFactory;
import com.fasterxml.jackson.databind.node.ObjectNode;
import java.util.List;

/**
 * Turns the system catalogue into a description of a Solvaria-shaped QZSystem.mdb: the system
 * tables as the suite makes them on Jet, a few rows in the tables that drive a conversion, user
 * archives (D_..., one named with a leading digit), dictionaries (DIZ_...), and optionally one
 * archive that carries a finding the source verification must report. See README.md.
 */
final class Solvaria {
    static final String PASSWORD = "brnzolvet52";
    static final List<String> VARIANTS = List.of("none", "dates", "nullkey", "memoindex", "index900", "index901");

    /** An archive: table name (= its SYS_SERIALE in DB_ELENCO), description, share of --rows. */
    record Archive(String table, String description, long rows, boolean listed, boolean present) {}

    private static final JsonNodeFactory J = JsonNodeFactory.instance;

    private Solvaria() {}

    /** The archives for a main archive of rows records. */
    static List<Archive> archives(long rows) {
        return List.of(
                new Archive("D_PROTOCOLLO", "Protocollo generale", rows, true, true),
                new Archive("D_FATTURE", "Fatture passive", rows / 4, true, true),
                new Archive("D_CONTRATTI", "Contratti e convenzioni", rows / 10, true, true),
                new Archive("2019_CORRISP", "Corrispondenza 2019", rows / 20, true, true),
                // listed in DB_ELENCO but gone from the file: the conversion reports and skips it
                new Archive("D_RIMOSSO", "Archivio rimosso", 0, true, false),
                // in the file but not in DB_ELENCO: verification names it, nothing is imported
                new Archive("D_BOZZE", "Bozze", 10, false, true));
    }

    static ObjectNode describe(CatalogueFile cat, long rows, String variant) {
        if (!VARIANTS.contains(variant)) {
            throw new DescriptionException("--variant", "unknown variant \"" + variant + "\"; known: " + VARIANTS);
        }
        if (rows < 0) {
            throw new DescriptionException("--rows", "a number of rows is not negative");
        }
        ObjectNode root = J.objectNode();
        root.put("format", "V2000");
        root.put("seed", 1996);
        root.put("password", PASSWORD);
        root.put("creationDate", "2004-03-18T09:41:27");
        ArrayNode tables = root.putArray("tables");
        for (CatalogueFile.Table t : cat.tables) {
            tables.add(systemTable(t));
        }
        List<Archive> archives = archives(rows);
        for (Archive a : archives) {
            if (a.present()) {
                tables.add(archiveTable(a.table(), a.rows()));
            }
        }
        tables.add(dictionary("DIZ_TIPIDOC", List.of("Fattura", "Nota di credito", "Contratto", "Lettera",
                "Circolare", "Verbale", "Delibera", "Determina")));
        tables.add(dictionary("DIZ_UFFICI", List.of("Segreteria", "Ragioneria", "Tributi", "Anagrafe",
                "Ufficio tecnico", "Personale", "Protocollo")));
        String findings = null;
        if (!variant.equals("none")) {
            findings = "D_ANOMALIE";
            tables.add(findingsTable(findings, variant));
        }
        fillSystemRows(cat, tables, archives, findings);

        ArrayNode relations = root.putArray("relations");
        for (CatalogueFile.Relation r : cat.relations) {
            // A reference that cascades nothing is never made as a key on Jet; only the
            // cascading ones exist in the suite's files, and Jet enforces those.
            if (!r.cascadeDelete() && !r.cascadeUpdate()) {
                continue;
            }
            ObjectNode o = relations.addObject();
            o.put("name", r.name());
            ObjectNode p = o.putObject("primary");
            p.put("table", r.relatedTable());
            r.relatedFields().forEach(p.putArray("columns")::add);
            ObjectNode f = o.putObject("foreign");
            f.put("table", r.table());
            r.fields().forEach(f.putArray("columns")::add);
            o.put("referentialIntegrity", true);
            o.put("cascadeDeletes", r.cascadeDelete());
            o.put("cascadeUpdates", r.cascadeUpdate());
        }
        return root;
    }

    // ---- system tables ------------------------------------------------------------------------

    private static ObjectNode systemTable(CatalogueFile.Table t) {
        ObjectNode o = J.objectNode();
        o.put("name", t.name());
        ArrayNode cols = o.putArray("columns");
        for (CatalogueFile.Field f : t.fields()) {
            cols.add(column(f));
        }
        ArrayNode idx = o.putArray("indexes");
        for (CatalogueFile.Index i : t.indexes()) {
            ObjectNode x = idx.addObject();
            x.put("name", i.name());
            ArrayNode c = x.putArray("columns");
            for (String item : i.fields().split(";")) {
                boolean desc = item.startsWith("-");
                String name = item.startsWith("+") || desc ? item.substring(1) : item;
                if (t.field(name) == null) {
                    throw new DescriptionException(t.name() + "." + i.name(), "no field " + name);
                }
                if (desc) {
                    c.addObject().put("name", name).put("descending", true);
                } else {
                    c.add(name);
                }
            }
            if ((i.flags() & 1) != 0) {
                x.put("primaryKey", true);
            }
            if ((i.flags() & 4) != 0) {
                x.put("unique", true);
            }
        }
        o.putArray("rows");
        return o;
    }

    /** A catalogue field as Jet holds it once nxTd made it through ADOX. */
    static ObjectNode column(CatalogueFile.Field f) {
        ObjectNode c = J.objectNode();
        c.put("name", f.name());
        switch (f.type()) {
            case "I2" -> c.put("type", "INT");
            case "I4" -> c.put("type", "LONG");
            case "F8" -> c.put("type", "DOUBLE");
            case "CUR" -> c.put("type", "MONEY");
            case "BOOL" -> c.put("type", "BOOLEAN");
            case "GUID" -> c.put("type", "GUID");
            case "MEMO" -> c.put("type", "MEMO");
            case "DATE" -> c.put("type", "SHORT_DATE_TIME");
            case "V" -> c.put("type", "TEXT").put("size", f.size());
            default -> throw new DescriptionException(f.name(), "unknown type " + f.type());
        }
        boolean text = f.type().equals("V") || f.type().equals("MEMO");
        switch (f.mark()) {
            case "A" -> {
                if (!f.type().equals("I4")) {
                    throw new DescriptionException(f.name(), "auto-increment on a non-I4 field");
                }
                c.put("autoNumber", true);
            }
            case "R" -> c.put("required", true);
            case "Rz" -> c.put("required", true);
            default -> { }
        }
        if (text) {
            // zero length is allowed by Rz and by a text without a mark; R and O refuse it
            c.put("allowZeroLength", f.mark().equals("Rz") || f.mark().isEmpty());
        }
        if (f.defaultValue() != null) {
            c.put("defaultValue", f.defaultValue());
        }
        return c;
    }

    private static ObjectNode table(ArrayNode tables, String name) {
        for (JsonNode t : tables) {
            if (t.get("name").asText().equals(name)) {
                return (ObjectNode) t;
            }
        }
        throw new DescriptionException(name, "the catalogue has no table " + name);
    }

    private static ObjectNode row(ArrayNode rows) {
        return rows.addObject();
    }

    private static void fillSystemRows(CatalogueFile cat, ArrayNode tables, List<Archive> archives, String findings) {
        ObjectNode q = row((ArrayNode) table(tables, "QZSYSTEM").get("rows"));
        q.put("VERSIONE", 9).put("LOCKED", false).put("DESCRIZIONE", "Comune di Valdorsa - archivio documentale")
                .put("PARAMETRI", "LANG=IT;ANNO=2019");

        ArrayNode classi = (ArrayNode) table(tables, "CLASSI").get("rows");
        row(classi).put("CLASSE", "Generale");
        row(classi).put("CLASSE", "Fiscale");

        ArrayNode elenco = (ArrayNode) table(tables, "DB_ELENCO").get("rows");
        int n = 0;
        for (Archive a : archives) {
            if (!a.listed()) {
                continue;
            }
            elencoRow(elenco, a.table(), a.description(), n++);
        }
        if (findings != null) {
            elencoRow(elenco, findings, "Archivio con anomalie", n);
        }

        ArrayNode diz = (ArrayNode) table(tables, "DB_DIZIONARIO").get("rows");
        row(diz).put("ID_DIZIONARIO", "TIPIDOC").put("DIZIONARIO", "Tipi di documento").put("NOME_TABELLA", "DIZ_TIPIDOC");
        row(diz).put("ID_DIZIONARIO", "UFFICI").put("DIZIONARIO", "Uffici").put("NOME_TABELLA", "DIZ_UFFICI");
        ArrayNode link = (ArrayNode) table(tables, "DB_DIZIONARIO_LINK").get("rows");
        row(link).put("ID_DIZIONARIO", "TIPIDOC").put("SYS_SERIALE", "D_PROTOCOLLO").put("FIELD", "OGGETTO")
                .put("FIELD_TO_FIND", "DESCRIZIONE");
        row(link).put("ID_DIZIONARIO", "UFFICI").put("SYS_SERIALE", "D_FATTURE").put("FIELD", "SYS_UTENTE")
                .put("FIELD_TO_FIND", "DESCRIZIONE");

        ArrayNode utenti = (ArrayNode) table(tables, "UTENTI").get("rows");
        row(utenti).put("UTENTE", "admin").put("UTENTE_COMPLETO", "Amministratore").put("ADMIN", true)
                .put("SICUREZZA", 9).put("SECRET_KEY", 0);
        row(utenti).put("UTENTE", "mrossi").put("UTENTE_COMPLETO", "Mario Rossi").put("ADMIN", false)
                .put("SICUREZZA", 1).put("AIPA_COGNOME", "Rossi").put("AIPA_NOME", "Mario")
                .put("AIPA_DATA_NASCITA", "1961-07-14").put("EMAIL", "mrossi@valdorsa.example");
        row(utenti).put("UTENTE", "lbianchi").put("UTENTE_COMPLETO", "").put("ADMIN", false).put("SICUREZZA", 1);

        ArrayNode gruppi = (ArrayNode) table(tables, "GRUPPI").get("rows");
        row(gruppi).put("GRUPPO", "Amministratori");
        row(gruppi).put("GRUPPO", "Protocollo");
        ArrayNode ug = (ArrayNode) table(tables, "UTENTE_GRUPPI").get("rows");
        row(ug).put("ID_UTENTE", 1).put("ID_GRUPPO", 1);
        row(ug).put("ID_UTENTE", 2).put("ID_GRUPPO", 2);
        row(ug).put("ID_UTENTE", 3).put("ID_GRUPPO", 2);

        ArrayNode permessi = (ArrayNode) table(tables, "PERMESSI").get("rows");
        ObjectNode all = row(permessi).put("PERMESSO", "Completo");
        ObjectNode read = row(permessi).put("PERMESSO", "Consultazione");
        for (String right : List.of("APRI_DB", "CREA_DB", "VARIA_DB", "CANCELLA_DB", "SBLOCCA_DB", "IMPORT_DB",
                "EXPORT_DB", "STAMPA_FILE", "CREA_REC", "VARIA_REC", "CANCELLA_REC", "STAMPA_REC")) {
            all.put(right, true);
            read.put(right, right.equals("APRI_DB") || right.startsWith("STAMPA"));
        }
        ArrayNode up = (ArrayNode) table(tables, "UTENTE_PERMESSI").get("rows");
        row(up).put("ID_UTENTE", 1).put("ID_PERMESSO", 1);
        row(up).put("ID_UTENTE", 2).put("ID_PERMESSO", 2);
        row(up).put("ID_UTENTE", 3).put("ID_PERMESSO", 2);
        ArrayNode dp = (ArrayNode) table(tables, "DB_PERMESSI").get("rows");
        row(dp).put("SYS_SERIALE", "D_PROTOCOLLO").put("ID_PERMESSO", 1);
        row(dp).put("SYS_SERIALE", "D_PROTOCOLLO").put("ID_PERMESSO", 2);
        row(dp).put("SYS_SERIALE", "D_FATTURE").put("ID_PERMESSO", 1);
    }

    private static void elencoRow(ArrayNode elenco, String table, String description, int n) {
        row(elenco).put("SYS_SERIALE", table).put("ID_AREA", 0).put("ID_CLASSE", n % 2 + 1).put("ID_UTENTE", 1)
                .put("CREAZIONE", String.format("2003-%02d-1%dT10:15:00", n % 12 + 1, n % 10))
                .put("ARCHIVIO", description).put("SYS_DOSSIER", false).put("SYS_AUTOUPD", false)
                .put("SYS_VERSIONE", 3).put("SYS_PATH_DOCS", "\\\\archivio\\docs\\" + table)
                .put("SYS_AIPA_LOCATION", 1).put("ANNO", table.startsWith("2019") ? 2019 : 0)
                .put("TIPO_ARCH", 0).put("SYS_IMPEGNONUM", 1).put("PROTOCOLLO", table.equals("D_PROTOCOLLO"));
    }

    // ---- user archives and dictionaries --------------------------------------------------------

    private static ObjectNode col(ArrayNode cols, String name, String type) {
        return cols.addObject().put("name", name).put("type", type);
    }

    /** The columns every archive has, in the suite's layout. */
    private static void archiveColumns(ArrayNode cols) {
        col(cols, "SYS_RECORD", "LONG").put("autoNumber", true);
        col(cols, "SYS_DATAINS", "SHORT_DATE_TIME");
        col(cols, "SYS_UTENTE", "TEXT").put("size", 25);
        col(cols, "CODICE", "TEXT").put("size", 20).put("required", true).put("allowZeroLength", false);
        col(cols, "OGGETTO", "TEXT").put("size", 255).put("defaultValue", "\"\"");
        col(cols, "NUMERO", "LONG").put("defaultValue", "0");
        col(cols, "DATA_DOC", "SHORT_DATE_TIME");
        col(cols, "IMPORTO", "MONEY").put("defaultValue", "0");
        col(cols, "ALIQUOTA", "DOUBLE");
        col(cols, "NOTE", "MEMO");
        col(cols, "ARCHIVIATO", "BOOLEAN").put("defaultValue", "0");
    }

    private static void archiveIndexes(ArrayNode idx) {
        idx.addObject().put("name", "PrimaryKey").put("primaryKey", true).putArray("columns").add("SYS_RECORD");
        idx.addObject().put("name", "CODICE").put("unique", true).putArray("columns").add("CODICE");
        ObjectNode d = idx.addObject().put("name", "DATA_DOC");
        d.putArray("columns").addObject().put("name", "DATA_DOC").put("descending", true);
        ObjectNode nd = idx.addObject().put("name", "NUMERO_DATA");
        ArrayNode ndc = nd.putArray("columns");
        ndc.add("NUMERO");
        ndc.addObject().put("name", "DATA_DOC").put("descending", true);
    }

    static ObjectNode archiveTable(String name, long rows) {
        ObjectNode o = J.objectNode();
        o.put("name", name);
        archiveColumns(o.putArray("columns"));
        archiveIndexes(o.putArray("indexes"));
        ObjectNode g = o.putObject("generate");
        g.put("count", rows);
        ObjectNode c = g.putObject("columns");
        c.putObject("SYS_DATAINS").put("kind", "date").put("from", "1998-01-01").put("to", "2024-12-31");
        ArrayNode users = c.putObject("SYS_UTENTE").put("kind", "pick").putArray("values");
        users.add("admin").add("mrossi").add("lbianchi");
        // the archive's name in the codes keeps them apart when archives are merged
        c.putObject("CODICE").put("kind", "sequence").put("format", name.replace("_", "") + "-%08d");
        c.putObject("OGGETTO").put("kind", "text").put("minLength", 5).put("maxLength", 120)
                .put("alphabet", "latin1").put("empties", 0.05);
        c.putObject("NUMERO").put("kind", "int").put("min", 1).put("max", 99999);
        c.putObject("DATA_DOC").put("kind", "date").put("from", "1990-01-01").put("to", "2024-12-31")
                .put("resolution", "day").put("nulls", 0.02);
        c.putObject("IMPORTO").put("kind", "decimal").put("min", "-10000").put("max", "250000").put("scale", 2)
                .put("nulls", 0.05);
        ArrayNode rates = c.putObject("ALIQUOTA").put("kind", "pick").putArray("values");
        rates.add(0).add(4).add(10).add(22).add(22.5);
        c.putObject("NOTE").put("kind", "text").put("minLength", 0).put("maxLength", 1500)
                .put("alphabet", "mixed").put("nulls", 0.5);
        c.putObject("ARCHIVIATO").put("kind", "bool").put("trueFraction", 0.3);
        return o;
    }

    static ObjectNode dictionary(String name, List<String> values) {
        ObjectNode o = J.objectNode();
        o.put("name", name);
        ArrayNode cols = o.putArray("columns");
        col(cols, "SYS_RECORD", "LONG").put("autoNumber", true);
        col(cols, "CODICE", "TEXT").put("size", 10).put("required", true).put("allowZeroLength", false);
        col(cols, "DESCRIZIONE", "TEXT").put("size", 100);
        col(cols, "VALIDO_DAL", "SHORT_DATE_TIME");
        ArrayNode idx = o.putArray("indexes");
        idx.addObject().put("name", "PrimaryKey").put("primaryKey", true).putArray("columns").add("SYS_RECORD");
        idx.addObject().put("name", "CODICE").put("unique", true).putArray("columns").add("CODICE");
        ArrayNode rows = o.putArray("rows");
        int k = 1;
        for (String v : values) {
            rows.addObject().put("CODICE", String.format("%03d", k)).put("DESCRIZIONE", v)
                    .put("VALIDO_DAL", String.format("20%02d-01-01", k));
            k++;
        }
        return o;
    }

    /**
     * One archive carrying exactly one kind of finding, with rows that show its edge: what fails
     * next to what just passes.
     */
    static ObjectNode findingsTable(String name, String variant) {
        ObjectNode o = archiveTable(name, 0);
        o.remove("generate");
        ArrayNode cols = (ArrayNode) o.get("columns");
        ArrayNode idx = (ArrayNode) o.get("indexes");
        ArrayNode rows = o.putArray("rows");
        switch (variant) {
            case "dates" -> {
                rows.addObject().put("CODICE", "A1").put("DATA_DOC", "1700-03-15");
                rows.addObject().put("CODICE", "A2").put("DATA_DOC", "1753-01-01"); // passes: not before 1753
                rows.addObject().put("CODICE", "A3").put("DATA_DOC", "1752-12-31T23:59:59");
                rows.addObject().put("CODICE", "A4").put("DATA_DOC", "2019-05-02");
                // SYS_ dates are never examined
                rows.addObject().put("CODICE", "A5").put("SYS_DATAINS", "1600-01-01").put("DATA_DOC", "2019-05-03");
            }
            case "nullkey" -> {
                // Jet keeps NULL out of a primary key; an ignore-nulls key lets the row in unindexed,
                // which is how a damaged file looks to the suite's check
                col(cols, "CHIAVE", "TEXT").put("size", 20);
                idx.remove(0);
                idx.insertObject(0).put("name", "PrimaryKey").put("primaryKey", true).put("ignoreNulls", true)
                        .putArray("columns").add("CHIAVE");
                rows.addObject().put("CODICE", "B1").put("CHIAVE", "K1");
                rows.addObject().put("CODICE", "B2");
                rows.addObject().put("CODICE", "B3").put("CHIAVE", "K3");
            }
            case "memoindex" -> {
                idx.addObject().put("name", "NOTE").putArray("columns").add("NOTE");
                rows.addObject().put("CODICE", "C1").put("NOTE", "nota breve");
                rows.addObject().put("CODICE", "C2");
            }
            case "index900", "index901" -> {
                // text counts two bytes a character: 255 + 191 characters and a double are 900 bytes,
                // a yes/no column more makes 901
                col(cols, "TESTO_A", "TEXT").put("size", 255);
                col(cols, "TESTO_B", "TEXT").put("size", 191);
                ArrayNode ic = idx.addObject().put("name", "LUNGO").putArray("columns");
                ic.add("TESTO_A").add("TESTO_B").add("ALIQUOTA");
                if (variant.equals("index901")) {
                    ic.add("ARCHIVIATO");
                }
                rows.addObject().put("CODICE", "D1").put("TESTO_A", "alfa").put("TESTO_B", "beta").put("ALIQUOTA", 1.5);
                rows.addObject().put("CODICE", "D2").put("TESTO_A", "gamma").put("ALIQUOTA", 22);
            }
            default -> throw new IllegalArgumentException(variant);
        }
        return o;
    }
}
