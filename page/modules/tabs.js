/** Tabs as the ARIA practices describe them: arrow keys, Home and End select; each tab names its panel. */
export class Tabs {
    constructor(tabList) {
        this.tabs = [...tabList.querySelectorAll('[role=tab]')];
        tabList.addEventListener('click', (event) => {
            const tab = event.target.closest('[role=tab]');
            if (tab) this.select(tab);
        });
        tabList.addEventListener('keydown', (event) => {
            const at = this.tabs.indexOf(event.target);
            const last = this.tabs.length - 1;
            const target = {
                ArrowRight: at === last ? 0 : at + 1, ArrowLeft: at === 0 ? last : at - 1, Home: 0, End: last,
            }[event.key];
            if (target === undefined) return;
            event.preventDefault();
            this.select(this.tabs[target]);
            this.tabs[target].focus();
        });
        this.select(this.tabs[0]);
    }

    select(selected) {
        for (const tab of this.tabs) {
            const isSelected = tab === selected;
            tab.setAttribute('aria-selected', String(isSelected));
            tab.tabIndex = isSelected ? 0 : -1;
            document.getElementById(tab.getAttribute('aria-controls')).hidden = !isSelected;
        }
    }
}
