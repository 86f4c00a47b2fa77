package com.vexane.graphics3d;

import static org.junit.jupiter.api.Assertions.assertEquals;

import com.vexane.base.NativePeer;
import java.util.Map;
import org.junit.jupiter.api.extension.AfterEachCallback;
import org.junit.jupiter.api.extension.BeforeEachCallback;
import org.junit.jupiter.api.extension.ExtensionContext;

/** Fails every test that leaves a peer open. JUnit finds it through the service file next to the tests. */
public final class LeakCheck implements BeforeEachCallback, AfterEachCallback {
    private static final ExtensionContext.Namespace NAMESPACE = ExtensionContext.Namespace.create(LeakCheck.class);

    @Override
    public void beforeEach(ExtensionContext context) {
        context.getStore(NAMESPACE).put("open", NativePeer.countOpen());
    }

    @Override
    public void afterEach(ExtensionContext context) {
        Map<?, ?> before = context.getStore(NAMESPACE).get("open", Map.class);
        assertEquals(before, NativePeer.countOpen(), "open peers before and after the test");
    }
}
