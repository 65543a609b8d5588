package tav.kob.certificate;

import java.util.ArrayList;
import java.util.List;
import java.util.Map;
import tav.kob.base.Failure;
import tav.kob.command.ArgumentCursor;

/** Reads the arguments behind -certificate. */
public final class CertificateArguments {
    private static final Map<String, Integer> KEY_SIZES = Map.of("1024-RSA", 1024, "2048-RSA", 2048);
    private static final int OPERANDS = 3;

    private CertificateArguments() {
    }

    public static CertificateRequest read(ArgumentCursor arguments) throws Failure {
        CertificateRequest request = new CertificateRequest();
        List<String> operands = new ArrayList<>();
        while (arguments.hasNext()) {
            // A password may begin with a hyphen; behind the type and the file nothing is an option.
            if (operands.size() < OPERANDS - 1 && arguments.nextIsOption()) {
                readOption(request, arguments);
            } else {
                operands.add(arguments.next());
            }
        }
        readOperands(request, operands);
        requireNames(request);
        return request;
    }

    private static void readOption(CertificateRequest request, ArgumentCursor arguments) throws Failure {
        String option = arguments.next();
        switch (option) {
            case "-cn":
                request.commonName = arguments.valueOf(option);
                break;
            case "-ou":
                request.unit = arguments.valueOf(option);
                break;
            case "-o":
                request.organization = arguments.valueOf(option);
                break;
            case "-c":
                request.country = arguments.valueOf(option);
                break;
            case "-validityPeriod":
                request.years = years(arguments.valueOf(option));
                break;
            default:
                throw Failure.usage("unknown option " + option);
        }
    }

    private static int years(String text) throws Failure {
        if (!text.matches("[1-9]\\d{0,3}")) {
            throw Failure.usage("-validityPeriod cannot be " + text);
        }
        return Integer.parseInt(text);
    }

    private static void readOperands(CertificateRequest request, List<String> operands) throws Failure {
        if (operands.size() != OPERANDS) {
            throw Failure.usage("key type, file and password are needed behind the options");
        }
        if (!KEY_SIZES.containsKey(operands.get(0))) {
            throw Failure.usage("unknown key type " + operands.get(0));
        }
        request.keySize = KEY_SIZES.get(operands.get(0));
        request.file = operands.get(1);
        request.password = operands.get(2);
    }

    private static void requireNames(CertificateRequest request) throws Failure {
        if (request.commonName == null || request.unit == null
                || request.organization == null || request.country == null) {
            throw Failure.usage("-cn, -ou, -o and -c are needed");
        }
    }
}
