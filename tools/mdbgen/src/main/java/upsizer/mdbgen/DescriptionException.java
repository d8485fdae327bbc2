package upsizer.mdbgen;

/** A description that cannot be built; the message names the place in the JSON. */
final class DescriptionException extends RuntimeException {
    DescriptionException(String path, String message) {
        super(path + ": " + message);
    }

    DescriptionException(String path, String message, Throwable cause) {
        super(path + ": " + message, cause);
    }
}
