const storageKey = 'preview-shortcuts';

// Pages from files may have no storage.
function stored() {
    try {
        return localStorage.getItem(storageKey);
    } catch {
        return null;
    }
}

function store(value) {
    try {
        localStorage.setItem(storageKey, value);
    } catch {
        // It holds until the page is closed.
    }
}

/** Runs actions for single keys, except while the user types, and unless the checkbox switches them off. */
export class Shortcuts {
    /** `actions` maps the key of an event to a function. */
    constructor(actions, checkbox) {
        checkbox.checked = stored() !== 'off';
        checkbox.addEventListener('change', () => store(checkbox.checked ? 'on' : 'off'));
        document.addEventListener('keydown', (event) => {
            if (!checkbox.checked || event.defaultPrevented || event.ctrlKey || event.altKey || event.metaKey) return;
            if (event.target.closest('input:not([type=checkbox]), select, textarea, dialog')) return;
            // These use the space bar themselves.
            if (event.key === ' ' && event.target.closest('button, summary, input')) return;
            const action = actions.get(event.key.toLowerCase());
            if (!action) return;
            event.preventDefault();
            action();
        });
    }
}
