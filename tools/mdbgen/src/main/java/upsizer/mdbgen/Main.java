package upsizer.mdbgen;

import com.fasterxml.jackson.databind.DeserializationFeature;
import com.fasterxml.jackson.databind.JsonNode;
import com.fasterxml.jackson.databind.ObjectMapper;
import java.io.IOException;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.ArrayList;
import java.util.HashMap;
import java.util.List;
import java.util.Map;
import java.util.logging.Level;
import java.util.logging.Logger;

/** Command line: mdbgen build | dump | password. */
public final class Main {
    static final String USAGE = String.join("\n",
            "usage:",
            "  mdbgen build [--rows N] [--rows TABLE=N]... <description.json> <out.mdb>",
            "  mdbgen dump [--user-rows-only] <in.mdb> <out.json | ->",
            "  mdbgen password <in.mdb>",
            "  mdbgen solvaria --catalogue <catalogue.tsv> [--rows N] [--variant V] [--description <out.json>] <out.mdb>",
            "");

    /**
     * Jackcess logs a warning for every NULL key an ignore-nulls index skips; nothing we need.
     * Held here because the logging framework keeps its loggers only weakly.
     */
    private static final Logger JACKCESS_LOG = Logger.getLogger("com.healthmarketscience.jackcess");

    private Main() {}

    public static void main(String[] args) {
        JACKCESS_LOG.setLevel(Level.SEVERE);
        int rc;
        try {
            rc = run(args);
        } catch (DescriptionException e) {
            System.err.println("mdbgen: " + e.getMessage());
            rc = 1;
        } catch (IOException | RuntimeException e) {
            System.err.println("mdbgen: " + e);
            rc = 1;
        }
        System.exit(rc);
    }

    static int run(String[] args) throws IOException {
        if (args.length == 0) {
            System.err.print(USAGE);
            return 2;
        }
        List<String> rest = new ArrayList<>(List.of(args).subList(1, args.length));
        switch (args[0]) {
            case "build": return build(rest);
            case "dump": return dump(rest);
            case "password": return password(rest);
            case "solvaria": return solvaria(rest);
            case "--help": case "-h": case "help":
                System.out.print(USAGE);
                return 0;
            default:
                System.err.print("mdbgen: unknown command \"" + args[0] + "\"\n" + USAGE);
                return 2;
        }
    }

    static JsonNode readDescription(Path file) throws IOException {
        ObjectMapper m = new ObjectMapper()
                .enable(DeserializationFeature.USE_BIG_DECIMAL_FOR_FLOATS)
                .enable(DeserializationFeature.USE_BIG_INTEGER_FOR_INTS)
                .enable(DeserializationFeature.FAIL_ON_READING_DUP_TREE_KEY);
        return m.readTree(Files.readAllBytes(file));
    }

    private static int build(List<String> a) throws IOException {
        Long all = null;
        Map<String, Long> perTable = new HashMap<>();
        while (!a.isEmpty() && a.get(0).startsWith("--")) {
            String opt = a.remove(0);
            if (opt.equals("--rows") && !a.isEmpty()) {
                String v = a.remove(0);
                int eq = v.lastIndexOf('=');
                try {
                    if (eq < 0) {
                        all = Long.parseLong(v);
                    } else {
                        perTable.put(v.substring(0, eq), Long.parseLong(v.substring(eq + 1)));
                    }
                } catch (NumberFormatException e) {
                    System.err.print("mdbgen: --rows takes N or TABLE=N\n" + USAGE);
                    return 2;
                }
            } else {
                System.err.print("mdbgen: unknown option " + opt + "\n" + USAGE);
                return 2;
            }
        }
        if (a.size() != 2) {
            System.err.print(USAGE);
            return 2;
        }
        Path description = Path.of(a.get(0));
        Desc root = new Desc(readDescription(description), description.getFileName().toString());
        new Builder(root, all, perTable, System.err).build(Path.of(a.get(1)));
        return 0;
    }

    private static int dump(List<String> a) throws IOException {
        boolean userRowsOnly = false;
        while (!a.isEmpty() && a.get(0).startsWith("--")) {
            String opt = a.remove(0);
            if (opt.equals("--user-rows-only")) {
                userRowsOnly = true;
            } else {
                System.err.print("mdbgen: unknown option " + opt + "\n" + USAGE);
                return 2;
            }
        }
        if (a.size() != 2) {
            System.err.print(USAGE);
            return 2;
        }
        new Dumper(userRowsOnly).dump(Path.of(a.get(0)), a.get(1).equals("-") ? null : Path.of(a.get(1)));
        return 0;
    }

    private static int solvaria(List<String> a) throws IOException {
        Path catalogue = null;
        Path descriptionOut = null;
        long rows = 1000;
        String variant = "none";
        while (!a.isEmpty() && a.get(0).startsWith("--")) {
            String opt = a.remove(0);
            if (a.isEmpty()) {
                System.err.print("mdbgen: " + opt + " needs a value\n" + USAGE);
                return 2;
            }
            String v = a.remove(0);
            switch (opt) {
                case "--catalogue": catalogue = Path.of(v); break;
                case "--description": descriptionOut = Path.of(v); break;
                case "--variant": variant = v; break;
                case "--rows":
                    try {
                        rows = Long.parseLong(v);
                    } catch (NumberFormatException e) {
                        System.err.print("mdbgen: --rows takes a number\n" + USAGE);
                        return 2;
                    }
                    break;
                default:
                    System.err.print("mdbgen: unknown option " + opt + "\n" + USAGE);
                    return 2;
            }
        }
        if (a.size() != 1 || catalogue == null) {
            System.err.print(USAGE);
            return 2;
        }
        JsonNode description = Solvaria.describe(CatalogueFile.read(catalogue), rows, variant);
        if (descriptionOut != null) {
            new ObjectMapper().writerWithDefaultPrettyPrinter().writeValue(descriptionOut.toFile(), description);
        }
        new Builder(new Desc(description, "solvaria"), null, Map.of(), System.err).build(Path.of(a.get(0)));
        return 0;
    }

    private static int password(List<String> a) throws IOException {
        if (a.size() != 1) {
            System.err.print(USAGE);
            return 2;
        }
        System.out.println(HeaderPassword.read(Path.of(a.get(0))));
        return 0;
    }
}
